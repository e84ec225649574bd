#include "ctables/recastor/zelkformat.h"

namespace recastor {

namespace {

constexpr std::uint16_t kWidestNumber = 40;

} // namespace

const ZELK_Format kDefaultFormat(ZELK_Format::kNumericFormat, 8, 2);

ZELK_Format::ZELK_Format(FormatType type, int width, int decimals) {
    Type(type);
    Width(static_cast<std::uint16_t>(width));
    Decimals(static_cast<std::uint8_t>(decimals));
}

void ZELK_Format::Width(std::uint16_t width) {
    m_width = !IsString() && width > kWidestNumber ? kWidestNumber : width;
}

} // namespace recastor
