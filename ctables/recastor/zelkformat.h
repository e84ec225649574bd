/// A print format: type, width, decimals.
#pragma once

#include <cstdint>

namespace recastor {

/// A small value. Widths of numeric formats end at 40, so the type is set before the width.
class ZELK_Format {
public:
    enum FormatType : std::uint8_t {
        kStringFormat = 1,
        kHexStringFormat = 2,
        kNumericFormat = 5,
    };

    ZELK_Format(FormatType type, int width, int decimals);

    FormatType Type() const { return m_type; }
    std::uint16_t Width() const { return m_width; }
    std::uint8_t Decimals() const { return m_decimals; }

    void Type(FormatType type) { m_type = type; }
    /// A width above 40 is stored as 40 unless the format is a string format.
    void Width(std::uint16_t width);
    void Decimals(std::uint8_t decimals) { m_decimals = decimals; }

    bool IsString() const { return m_type == kStringFormat || m_type == kHexStringFormat; }

private:
    std::uint16_t m_width = 0;
    FormatType m_type = kNumericFormat;
    std::uint8_t m_decimals = 0;
};

/// The cell format that a table has when none is given.
extern const ZELK_Format kDefaultFormat;

} // namespace recastor
