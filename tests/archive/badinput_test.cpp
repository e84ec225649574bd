// Folders that are not as one would wish.

#include "archive/report/filepage.h"
#include "tests/archive/archivetree.h"

#include <cerrno>
#include <sys/stat.h>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

/// The environment of a run in which these calls (NAME:NUMBER, NAME:NUMBER+) find the disk full.
std::vector<std::string> DiskIsFullAt(const std::string& calls) {
    return {"LD_PRELOAD=" RECASTOR_FAULT_LIBRARY,
            "RECASTOR_FAULT=" + calls + ':' + std::to_string(ENOSPC),
            "ASAN_OPTIONS=verify_asan_link_order=0"};
}

class BadInput : public ArchiveTree {
protected:
    std::string Message(const std::string& path) const {
        const auto entry = Entry(path);
        return entry.is_null() ? "no entry" : entry.at("message").get<std::string>();
    }
};

TEST_F(BadInput, LinkOutOfTheSourceIsNotFollowed) {
    WriteFile(m_folder.Path() / "outside.syn", kTable);
    fs::create_directory(m_folder.Path() / "folder");
    WriteFile(m_folder.Path() / "folder/x.syn", kTable);
    fs::create_symlink("../outside.syn", m_source / "file.syn");
    fs::create_symlink("../folder", m_source / "linked");
    const RunResult result = Run();
    EXPECT_THAT(result.output,
                HasSubstr("2 files: 0 converted, 0 incomplete, 0 failed, 2 skipped"));
    EXPECT_EQ(Message("file.syn"), "is a link that leads out of the source folder");
    EXPECT_EQ(Message("linked"), "is a link that leads out of the source folder");
    EXPECT_THAT(result.errors, HasSubstr("recastor-tree: file.syn: is a link that leads out"));
    EXPECT_FALSE(HasTarget("file.syn"));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Run({"--fail-on=warning"}).status, 1);
}

TEST_F(BadInput, LinkToAFileOfTheSourceIsConverted) {
    Put("a.syn", kTable);
    fs::create_symlink("a.syn", m_source / "b.syn");
    EXPECT_EQ(Run().status, 0);
    EXPECT_EQ(Target("b.syn"), Target("a.syn"));
    EXPECT_FALSE(fs::is_symlink(m_target / "b.syn"));
}

TEST_F(BadInput, LoopsOfLinksAndBrokenLinksAreSurvived) {
    Put("a/x.syn", kTable);
    fs::create_symlink("..", m_source / "a/up");
    fs::create_symlink("two.syn", m_source / "one.syn");
    fs::create_symlink("one.syn", m_source / "two.syn");
    fs::create_symlink("nothing", m_source / "broken.syn");
    const RunResult result = Run();
    EXPECT_THAT(result.output,
                HasSubstr("5 files: 1 converted, 0 incomplete, 0 failed, 4 skipped"));
    EXPECT_EQ(Message("a/up"),
              "is a link to a folder of the source; its files are converted in their own place");
    EXPECT_EQ(Message("one.syn"), "is a link in a loop of links");
    EXPECT_EQ(Message("broken.syn"), "is a link to nothing");
}

TEST_F(BadInput, FileInUtf16FailsAndIsToldOf) {
    Put("a.syn", "\xFF\xFE" + std::string("T\0A\0B\0L\0E\0S\0", 12));
    const RunResult result = Run();
    EXPECT_THAT(result.output, HasSubstr("1 files: 0 converted, 0 incomplete, 1 failed"));
    EXPECT_EQ(Message("a.syn"), "is in UTF-16, which cannot be read: save it as UTF-8 first");
    EXPECT_FALSE(HasTarget("a.syn"));
    EXPECT_EQ(result.status, 1);
}

TEST_F(BadInput, WhatIsNoRegularFileIsNotOpened) {
    ASSERT_EQ(::mkfifo((m_source / "pipe.syn").c_str(), 0600), 0);
    fs::create_directory(m_source / "folder.syn");
    Run();
    EXPECT_EQ(Message("pipe.syn"), "is no regular file");
    EXPECT_EQ(Message("folder.syn"), "no entry");
}

TEST_F(BadInput, TimeLimitsThatAreNoneAreTold) {
    for (const std::string value : {"-1", "x", "1000001"}) {
        const RunResult result = Run({"--time-limit=" + value});
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.errors,
                    HasSubstr("--time-limit: Value " + value + " not in range 0 to 1000000"));
    }
}

TEST_F(BadInput, NamesThatDifferInCaseOnlyAreTold) {
    Put("Report.syn", kTable);
    Put("report.syn", kTable);
    Put("\xC3\x84.syn", kTable);
    Put("\xC3\xA4.syn", kTable);
    Put("A/x.syn", kTable);
    Put("a/x.syn", kTable);
    Put("a/y.syn", kTable);
    EXPECT_EQ(Run().status, 0);
    EXPECT_EQ(Entry("report.syn").at("notes").at(0),
              "Its name differs from Report.syn in case only.");
    EXPECT_EQ(Entry("\xC3\xA4.syn").at("notes").size(), 1U);
    EXPECT_EQ(Entry("a/x.syn").at("notes").at(0), "Its name differs from A/x.syn in case only.");
    EXPECT_EQ(Entry("a/y.syn").at("notes").size(), 0U);
    EXPECT_EQ(Entry("Report.syn").at("notes").size(), 0U);
    EXPECT_THAT(ReadFile(m_report / "report.csv"),
                HasSubstr("\"report.syn\",\"converted\","
                          "\"Its name differs from Report.syn in case only.\""));
    EXPECT_TRUE(HasTarget("Report.syn"));
    EXPECT_TRUE(HasTarget("report.syn"));
}

TEST_F(BadInput, SecondNameFailsWhereTheTargetFolderIsBlindToCase) {
    Put("Report.syn", kTable);
    Put("report.syn", "COMPUTE a = 1.\n");
    Put("other.syn", "COMPUTE b = 1.\n");
    const RunResult result = Run({}, {"LD_PRELOAD=" RECASTOR_FAULT_LIBRARY, "RECASTOR_CASE_BLIND=1",
                                      "ASAN_OPTIONS=verify_asan_link_order=0"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(Message("report.syn"), "its target would be that of Report.syn");
    EXPECT_EQ(Entry("report.syn").at("status"), "failed");
    EXPECT_FALSE(HasTarget("report.syn"));
    EXPECT_TRUE(HasTarget("Report.syn"));
    EXPECT_TRUE(HasTarget("other.syn"));
}

TEST_F(BadInput, NamesOfAnyBytesAreConvertedAndShownSafely) {
    const std::vector<std::pair<std::string, std::string>> names{
        {"line\nbreak.syn", "line\\x0Abreak.syn"},
        {"quote\"and'.syn", "quote\"and'.syn"},
        {"invalid\xFF.syn", "invalid\\xFF.syn"},
        {"<script>alert(1)<.syn", "<script>alert(1)<.syn"},
        {"-rf.syn", "-rf.syn"},
        {"=1+1,2.syn", "=1+1,2.syn"},
        {"back\\slash%41.syn", "back\\slash%41.syn"},
        {"\x1B[31mred.syn", "\\x1B[31mred.syn"},
    };
    for (const auto& [name, shown] : names) {
        Put(name, kWrongTable);
    }
    EXPECT_EQ(Run().status, 1);
    for (const auto& [name, shown] : names) {
        EXPECT_TRUE(HasTarget(name)) << shown;
        EXPECT_EQ(Entry(shown).at("status"), "incomplete") << shown;
    }
    const auto sarif = ReadJson(m_report / "report.sarif");
    EXPECT_EQ(sarif.at("runs").at(0).at("results").size(), names.size());
    const std::string csv = ReadFile(m_report / "report.csv");
    EXPECT_THAT(csv, HasSubstr("\"quote\"\"and'.syn\""));
    EXPECT_THAT(csv, HasSubstr("\"'=1+1,2.syn\""));
    EXPECT_THAT(csv, HasSubstr("\"invalid%FF.syn\""));
    EXPECT_THAT(Run().output, HasSubstr("8 unchanged"));
}

TEST_F(BadInput, TargetThatCannotBeWrittenIsTold) {
    Put("a.syn", kTable);
    Put("b/c.syn", kTable);
    fs::create_directories(m_target / "a.syn/in the way");
    WriteFile(m_target / "b", "a file in the place of a folder");
    const RunResult result = Run();
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(Message("a.syn"), "cannot put the target in its place: Is a directory");
    EXPECT_EQ(Message("b/c.syn"), "cannot enter a folder of the target: Not a directory");
    EXPECT_THAT(result.output, HasSubstr("2 files: 0 converted, 0 incomplete, 2 failed"));
}

TEST_F(BadInput, NothingIsWrittenThroughALinkInTheTarget) {
    Put("a/x.syn", kTable);
    Put("y.syn", kTable);
    fs::create_directories(m_folder.Path() / "elsewhere");
    fs::create_directories(m_target);
    fs::create_symlink("../elsewhere", m_target / "a");
    WriteFile(m_folder.Path() / "precious", "text");
    fs::create_symlink("../precious", m_target / "y.syn");
    EXPECT_EQ(Run().status, 2);
    EXPECT_TRUE(fs::is_empty(m_folder.Path() / "elsewhere"));
    EXPECT_EQ(ReadFile(m_folder.Path() / "precious"), "text");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(m_target / "y.syn")));
}

TEST_F(BadInput, ReportIsNotWrittenThroughALinkInTheTarget) {
    Put("a.syn", kTable);
    const fs::path elsewhere = m_folder.Path() / "elsewhere";
    fs::create_directories(elsewhere);
    fs::create_directories(m_target);
    fs::create_symlink(elsewhere, m_report);
    const RunResult result = Run();
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("/target/recastor-report: it is a link\n"));
    EXPECT_TRUE(fs::is_empty(elsewhere));
    EXPECT_EQ(Run({"--report", m_report}).status, 0) << "the user named it";
    EXPECT_TRUE(fs::exists(elsewhere / "report.json"));
}

TEST_F(BadInput, NothingIsWrittenThroughALinkInTheReport) {
    Put("a.syn", kTable);
    const fs::path elsewhere = m_folder.Path() / "elsewhere";
    for (const std::string folder : {"files", "assets"}) {
        fs::create_directories(elsewhere);
        fs::create_directories(m_report);
        fs::create_symlink(elsewhere, m_report / folder);
        EXPECT_EQ(Run().status, 2) << folder;
        EXPECT_TRUE(fs::is_empty(elsewhere)) << folder;
        fs::remove_all(m_target);
    }
    fs::create_directories(m_report / "files");
    WriteFile(m_folder.Path() / "precious", "text");
    for (const std::string& name :
         std::vector<std::string>{"run.json", "index.html", "report.csv", "report.sarif",
                                  "report.json", "manifest.jsonl", FilePageName("a.syn")}) {
        fs::create_symlink(m_folder.Path() / "precious", m_report / name);
        fs::create_symlink(m_folder.Path() / "precious", m_report / (name + ".part"));
    }
    fs::create_symlink(m_folder.Path() / "precious", m_report / "manifest.jsonl.joined");
    EXPECT_EQ(Run().status, 0);
    EXPECT_EQ(ReadFile(m_folder.Path() / "precious"), "text");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(m_report / "index.html")));
}

TEST_F(BadInput, ReportThatFailsAtItsCloseTakesNoPlace) {
    Put("a.syn", kTable);
    const RunResult result =
        Run({"--report", m_folder.Path() / "report"}, DiskIsFullAt("close:1+"));
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("/report/run.json: No space left on device\n"));
    EXPECT_TRUE(fs::is_empty(m_folder.Path() / "report"));
}

TEST_F(BadInput, FullDiskIsToldCountedAndSurvived) {
    Put("a.syn", kTable);
    Put("b.syn", kTable);
    // The program writes three files of the report before it begins a worker, and each worker's
    // next write is its target.
    const RunResult result = Run({"--report", m_folder.Path() / "report"}, DiskIsFullAt("write:4"));
    EXPECT_EQ(result.status, 2);
    for (const std::string name : {"a.syn", "b.syn"}) {
        EXPECT_THAT(result.errors,
                    HasSubstr("recastor-tree: " + name +
                              ": cannot write the target: No space left on device\n"));
        EXPECT_FALSE(HasTarget(name));
    }
    EXPECT_THAT(result.output,
                HasSubstr("2 files: 0 converted, 0 incomplete, 2 failed, 0 skipped\n"));
}

TEST_F(BadInput, FullDiskAtTheReportIsTold) {
    Put("a.syn", kTable);
    const RunResult result =
        Run({"--report", m_folder.Path() / "report"}, DiskIsFullAt("write:1+"));
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("/report/run.json: No space left on device\n"));
    EXPECT_FALSE(HasTarget("a.syn"));
}

TEST_F(BadInput, FoldersThatDoNotFitTogetherAreRefused) {
    Put("a.syn", kTable);
    EXPECT_EQ(RunWith({"source", "source"}).status, 2);
    EXPECT_EQ(RunWith({"source", "."}).status, 2);
    EXPECT_EQ(RunWith({"missing", "target"}).status, 2);
    EXPECT_EQ(RunWith({"source/a.syn", "target"}).status, 2);
    EXPECT_EQ(RunWith({"source", "source/a.syn"}).status, 2);
    EXPECT_EQ(ReadFile(m_source / "a.syn"), kTable);
}

TEST_F(BadInput, TargetAndReportInTheSourceAreNotConvertedAgain) {
    Put("a.syn", kTable);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(RunWith({"--report", "source/report", "source", "source/out"}).status, 0);
    }
    EXPECT_TRUE(fs::exists(m_source / "out/a.syn"));
    EXPECT_FALSE(fs::exists(m_source / "out/out"));
    EXPECT_EQ(ReadJson(m_source / "report/report.json").at("totals").at("files"), 1);
}

TEST_F(BadInput, WrongArgumentsAreTold) {
    Put("a.syn", kTable);
    EXPECT_EQ(RunWith({}).status, 2);
    EXPECT_EQ(RunWith({"source"}).status, 2);
    EXPECT_EQ(RunWith({"source", "target", "third"}).status, 2);
    EXPECT_EQ(Run({"--nonsense"}).status, 2);
    EXPECT_EQ(Run({"-j0"}).status, 2);
    EXPECT_EQ(Run({"--fail-on=never"}).status, 2);
    for (const std::string shard : {"0/4", "5/4", "1", "a/b", "1/4x", "/"}) {
        EXPECT_EQ(Run({"--shard", shard}).status, 2) << shard;
    }
    EXPECT_FALSE(fs::exists(m_target));
}

TEST_F(BadInput, HelpAndVersionAreNoRuns) {
    EXPECT_THAT(RunWith({"--help"}).output, HasSubstr("SOURCE_DIR"));
    EXPECT_EQ(RunWith({"-h"}).status, 0);
    const RunResult version = RunWith({"--version"});
    EXPECT_THAT(version.output, testing::StartsWith("recastor-tree "));
    EXPECT_EQ(version.status, 0);
}

TEST_F(BadInput, NamesThatBeginWithADashFollowTwoDashes) {
    fs::create_directory(m_folder.Path() / "-source");
    WriteFile(m_folder.Path() / "-source/a.syn", kTable);
    EXPECT_EQ(RunWith({"--quiet", "--", "-source", "-target"}).status, 0);
    EXPECT_TRUE(fs::exists(m_folder.Path() / "-target/a.syn"));
}

} // namespace

} // namespace recastor
