#include "archive/report/reportassets.h"

#include "platform/zelkbase/zelkassert.h"

// What the assembler put between these places; the names are those of assets.S.
extern "C" {
extern const char recastor_file_js[];
extern const char recastor_file_js_end[];
extern const char recastor_index_js[];
extern const char recastor_index_js_end[];
extern const char recastor_report_css[];
extern const char recastor_report_css_end[];
}

namespace recastor {

namespace {

struct Asset {
    std::string_view name;
    const char* begin;
    const char* end;
};

const std::array<Asset, 3> gAssets{{
    {"file.js", recastor_file_js, recastor_file_js_end},
    {"index.js", recastor_index_js, recastor_index_js_end},
    {"report.css", recastor_report_css, recastor_report_css_end},
}};

} // namespace

std::string_view ReportAsset(std::string_view name) {
    for (const Asset& asset : gAssets) {
        if (asset.name == name) {
            return {asset.begin, static_cast<std::size_t>(asset.end - asset.begin)};
        }
    }
    ZELK_ASSERT(false);
    return {};
}

} // namespace recastor
