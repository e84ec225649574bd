#include "archive/tree/pages.h"

#include "archive/outcome/shownpath.h"
#include "archive/report/filepage.h"
#include "archive/report/reportassets.h"
#include "archive/tree/folders.h"
#include "archive/tree/systemerror.h"
#include "archive/tree/wholefile.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace recastor {

namespace {

std::string PlaceOf(const std::string& reportFolder, const FileOutcome& outcome) {
    return reportFolder + '/' + FilePageName(outcome.path);
}

} // namespace

void PreparePages(const std::string& reportFolder) {
    MakeFolderInside(reportFolder + "/assets");
    MakeFolderInside(std::filesystem::path(PlaceOf(reportFolder, {})).parent_path());
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
    std::ifstream page(PlaceOf(from, outcome), std::ios::binary);
    if (!page && errno != ENOENT) {
        throw SystemError("cannot read " + ShownPath(PlaceOf(from, outcome)));
    }
    if (page) {
        WholeFile copy(PlaceOf(to, outcome));
        copy.Stream() << page.rdbuf();
        copy.Finish();
    }
}

} // namespace recastor
