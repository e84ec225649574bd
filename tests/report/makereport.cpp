// Makes a report for the tests in a browser: makereport FOLDER INPUT... converts the inputs, of
// which the first begins its conversions with a TABLES command, and
// makes up files of which there are too many, and whose names are hostile.

#include "archive/picture/picturejson.h"
#include "archive/picture/skeletonofctables.h"
#include "archive/picture/skeletonoftree.h"
#include "archive/report/filepage.h"
#include "archive/report/reportassets.h"
#include "archive/report/reportindex.h"
#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/printcommand.h"
#include "ctables/recastor/recastor.h"
#include "platform/zelkwigr/igraphspec.h"
#include "tests/support/run.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace fs = std::filesystem;

namespace recastor {

namespace {

std::string AsItIs(std::string_view text) {
    return std::string(text);
}

/// The command as it is written in a file, with its period.
std::string AsWritten(std::string_view text) {
    std::ostringstream written;
    PrintCommand(std::string(text), written, 0);
    const std::string command = written.str();
    return command.substr(0, command.find_last_not_of('\n') + 1);
}

/// Writes down what is told of a file's commands, with their pictures.
class Recorder : public ConversionListener {
public:
    explicit Recorder(FileOutcome& outcome) : m_outcome(outcome) {}

    void OnCommand(ReportedKind kind, std::int64_t firstLine, std::string_view text) override {
        if (kind != ReportedKind::kTables && kind != ReportedKind::kIgraph) {
            ++m_outcome.copied;
            return;
        }
        CommandOutcome& command = m_outcome.commands.emplace_back();
        command.kind = kind;
        command.firstLine = firstLine;
        command.lastLine = firstLine + std::count(text.begin(), text.end(), '\n') - 1;
        command.oldText = AsWritten(text);
    }
    void OnTree(const TbTrParseNode& root) override {
        Command().oldPicture = PictureOfTables(SkeletonOfTree(root), AsItIs);
    }
    void OnChart(const iGraphSpec& spec) override {
        Command().chartSketch = SketchOfChart(spec.Chart(), AsItIs);
    }
    void OnConverted(std::string_view text, const std::vector<std::string>& warnings) override {
        Command().newText = AsWritten(text);
        Command().warnings = warnings;
        if (Command().kind == ReportedKind::kTables) {
            Command().newPicture =
                PictureOfTables(SkeletonOfCtables(Command().newText + '\n'), AsItIs);
        }
    }
    void OnNotConverted(const ConversionError& error) override {
        Command().error = error;
        m_outcome.status = FileStatus::kIncomplete;
    }

private:
    CommandOutcome& Command() { return m_outcome.commands.back(); }

    FileOutcome& m_outcome;
};

FileOutcome Converted(const fs::path& input) {
    const std::string text = ReadFile(input);
    FileOutcome outcome;
    outcome.path = input.parent_path().filename() / input.filename();
    outcome.status = FileStatus::kConverted;
    outcome.sourceSize = text.size();
    outcome.encoding = "UTF-8";
    std::istringstream file(text);
    std::ostringstream output;
    CommandStream commands(file, false);
    Recorder recorder(outcome);
    const CapturedStreams streams;
    ConvertCommands(commands, false, output, recorder);
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
        files.push_back(recastor::Converted(argv[i]));
    }
    const auto hostile = recastor::HostileFiles(files.front());
    files.insert(files.end(), hostile.begin(), hostile.end());
    constexpr int kMany = 10000;
    recastor::WriteReport(argv[1], files, kMany);
    return 0;
}
