// Makes a report for the tests in a browser: makereport FOLDER INPUT... converts the inputs, of
// which the first begins its conversions with a TABLES command, and those of pageinputs.h, and
// makes up files of which there are too many, and whose names are hostile.

#include "archive/report/filepage.h"
#include "archive/report/reportassets.h"
#include "archive/report/reportindex.h"
#include "archive/tree/outcomerecorder.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/recastor.h"
#include "tests/report/pageinputs.h"
#include "tests/support/run.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace fs = std::filesystem;

namespace recastor {

namespace {

FileOutcome Converted(const std::string& path, const std::string& text) {
    FileOutcome outcome;
    outcome.path = path;
    outcome.sourceSize = text.size();
    outcome.encoding = "UTF-8";
    std::istringstream file(text);
    std::ostringstream output;
    CommandStream commands(file, false);
    const TextShower shower("UTF-8");
    OutcomeRecorder recorder(outcome, shower, Pictures::kDrawn);
    const CapturedStreams streams;
    ConvertCommands(commands, false, output, recorder);
    outcome.status = CountsOf(outcome).commandsNotConverted > 0 ? FileStatus::kIncomplete
                                                                : FileStatus::kConverted;
    return outcome;
}

/// A file whose pictures disagree, and one whose name and texts would be markup.
std::vector<FileOutcome> HostileFiles(FileOutcome example) {
    const std::string markup = "<script>document.title='broken'</script>&amp;\"'";
    FileOutcome disagreeing = example;
    disagreeing.path = "pictures/disagree.syn";
    std::string& picture = disagreeing.commands.at(0).newPicture;
    picture.replace(picture.find("\"title\":["), 9, "\"title\":[\"another\",");
    example.path = markup + "/\xFF\xFE line\nbreak.syn";
    example.message = markup;
    example.notes = {markup};
    CommandOutcome& command = example.commands.at(0);
    command.oldText += "\n/* " + markup + " </script>";
    command.warnings = {markup};
    command.error = {command.firstLine, 1, markup};
    command.kind = ReportedKind::kOther;
    command.missedLines = {command.firstLine};
    return {disagreeing, example};
}

void WriteReport(const fs::path& folder, const std::vector<FileOutcome>& files, int madeUp) {
    fs::create_directories(folder / "files");
    fs::create_directories(folder / "assets");
    for (const std::string_view asset : kReportAssets) {
        WriteFile(folder / "assets" / asset, std::string(ReportAsset(asset)));
    }
    std::ofstream page(folder / "index.html");
    ReportIndex index(page);
    OutcomeCounts totals;
    for (const FileOutcome& file : files) {
        WriteFile(folder / FilePageName(file.path), FilePage(file));
        index.Add(file);
        totals += CountsOf(file);
    }
    for (int i = 0; i < madeUp; ++i) {
        FileOutcome file;
        file.path = "made-up/" + std::to_string(i % 100) + "/file" + std::to_string(i) + ".syn";
        file.status = static_cast<FileStatus>(i % 6);
        file.sourceSize = static_cast<std::uint64_t>(i * 37);
        file.copied = static_cast<std::uint64_t>(i % 50);
        index.Add(file);
        totals += CountsOf(file);
    }
    index.End({{"Source", "survey/<archive>"}, {"Converter", "recastor 0.1.0"}}, totals);
}

} // namespace

} // namespace recastor

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "makereport FOLDER INPUT...\n";
        return 2;
    }
    std::vector<recastor::FileOutcome> files;
    for (int i = 2; i < argc; ++i) {
        const fs::path input = argv[i];
        const fs::path path = input.parent_path().filename() / input.filename();
        files.push_back(recastor::Converted(path, recastor::ReadFile(input)));
    }
    for (const auto& input : recastor::PageInputs()) {
        files.push_back(recastor::Converted(input.path, input.text));
    }
    const auto hostile = recastor::HostileFiles(files.front());
    files.insert(files.end(), hostile.begin(), hostile.end());
    constexpr int kMany = 10000;
    recastor::WriteReport(argv[1], files, kMany);
    return 0;
}
