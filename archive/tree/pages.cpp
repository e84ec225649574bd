#include "archive/tree/pages.h"

#include "archive/report/filepage.h"
#include "archive/report/reportassets.h"
#include "archive/tree/folders.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/wholefile.h"

#include <filesystem>
#include <unistd.h>

namespace recastor {

namespace {

std::string PlaceOf(const std::string& reportFolder, const FileOutcome& outcome) {
    return reportFolder + '/' + FilePageName(outcome.path);
}

} // namespace

void PreparePages(const std::string& reportFolder) {
    MakeFolders(reportFolder + "/assets");
    MakeFolders(std::filesystem::path(PlaceOf(reportFolder, {})).parent_path());
    for (const std::string_view name : kReportAssets) {
        WholeFile asset(reportFolder + "/assets/" + std::string(name));
        asset.Stream() << ReportAsset(name);
        asset.Finish();
    }
}

void WritePage(const std::string& reportFolder, const FileOutcome& outcome) {
    if (HasFilePage(outcome)) {
        WholeFile page(PlaceOf(reportFolder, outcome));
        page.Stream() << FilePage(outcome);
        page.Finish();
    }
}

bool HasItsPage(const std::string& reportFolder, const FileOutcome& outcome) {
    return !HasFilePage(outcome) || ::access(PlaceOf(reportFolder, outcome).c_str(), F_OK) == 0;
}

void CopyPage(const std::string& from, const std::string& to, const FileOutcome& outcome) {
    if (!HasFilePage(outcome)) {
        return;
    }
    std::error_code error;
    std::filesystem::copy_file(PlaceOf(from, outcome), PlaceOf(to, outcome),
                               std::filesystem::copy_options::overwrite_existing, error);
    if (error && error != std::errc::no_such_file_or_directory) {
        throw SystemError("cannot write " + PlaceOf(to, outcome), error.value());
    }
}

} // namespace recastor
