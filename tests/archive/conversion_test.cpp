// What recastor-tree makes of a folder.

#include "tests/archive/archivetree.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Conversion : public ArchiveTree {};

TEST_F(Conversion, EveryFileBecomesWhatTheSingleFileProgramMakesOfIt) {
    const std::string household = ReadFile(fs::path(RECASTOR_ROOT) / "examples/household.syn");
    Put("a/b/household.syn", household);
    Put("a/plain.syn", "FREQ x.\r\n\r\n" + kTable);
    Put("wrong.syn", kWrongTable + kTable);
    Put("ended.syn", kTable + "TITLE 'a\nFREQ x.\n");
    Put("empty.syn", "");
    EXPECT_EQ(Run().status, 1);
    for (const std::string path :
         {"a/b/household.syn", "a/plain.syn", "wrong.syn", "ended.syn", "empty.syn"}) {
        RunProgram(RECASTOR_PROGRAM, {m_source / path, "single"}, m_folder.Path());
        EXPECT_EQ(Target(path), ReadFile(m_folder.Path() / "single")) << path;
    }
}

TEST_F(Conversion, ReportTellsWhatBecameOfEachFile) {
    Put("b/copied.syn", "FREQ x.\n");
    Put("b/converted.syn", kTable);
    Put("b/ended.syn", "FREQ x.\nTITLE 'a\n");
    Put("a.syn", "\n" + kWrongTable);
    const RunResult result = Run();
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(result.output, HasSubstr("4 files: 2 converted, 2 incomplete, 0 failed, 0 skipped\n"
                                         "2 TABLES and IGRAPH commands: 1 converted, 1 not "
                                         "converted; 0 warnings, 0 possibly missed\n"));
    EXPECT_THAT(Paths(), ElementsAre("a.syn", "b/converted.syn", "b/copied.syn", "b/ended.syn"));
    EXPECT_EQ(Entry("b/copied.syn").at("status"), "copied");
    EXPECT_EQ(Entry("b/converted.syn").at("status"), "converted");
    const auto wrong = Entry("a.syn");
    EXPECT_EQ(wrong.at("status"), "incomplete");
    EXPECT_EQ(wrong.at("commands").at(0).at("kind"), "tables");
    EXPECT_EQ(wrong.at("commands").at(0).at("firstLine"), 2);
    EXPECT_EQ(wrong.at("commands").at(0).at("error").at("line"), 2);
    EXPECT_EQ(wrong.at("commands").at(0).at("error").at("column"), 9);
    const auto ended = Entry("b/ended.syn");
    EXPECT_EQ(ended.at("status"), "ended");
    EXPECT_EQ(ended.at("message"), "Literal unclosed at the end of a line or command");
    EXPECT_EQ(ended.at("copied"), 1);
    EXPECT_EQ(Report().at("totals").at("files"), 4);
}

TEST_F(Conversion, LinesThatAnotherCommandSwallowsAreTold) {
    Put("a.syn", "COMMENT no period\ntables /TABLE x\n  IGRAPH /X\nTABLESX\nctables.\n");
    EXPECT_EQ(Run().status, 0);
    EXPECT_EQ(Entry("a.syn").at("commands").at(0).at("missedLines"), nlohmann::json({2, 3}));
    EXPECT_EQ(Run({"--fail-on", "warning"}).status, 1);
}

TEST_F(Conversion, WarningsFailOnlyWhenAskedFor) {
    Put("a.syn", "TABLES /WRITE x /TABLE sex.\n");
    EXPECT_EQ(Run({"--fail-on=error"}).status, 0);
    EXPECT_EQ(Entry("a.syn").at("commands").at(0).at("warnings").at(0),
              "Obsolete subcommand WRITE has been ignored.");
    EXPECT_EQ(Run({"--fail-on=warning"}).status, 1);
}

TEST_F(Conversion, CrashCostsOneFileOnly) {
    for (int i = 0; i < 20; ++i) {
        Put("f" + std::to_string(i) + ".syn", kTable);
    }
    Put("f10.syn", kTable + kCrash);
    const RunResult result = Run({"-j1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("f10.syn: the converter crashed: Aborted: "
                                         "Assertion failed: nzeros == 0"));
    EXPECT_THAT(result.output, HasSubstr("20 files: 19 converted, 0 incomplete, 1 failed"));
    EXPECT_FALSE(HasTarget("f10.syn"));
    EXPECT_TRUE(HasTarget("f9.syn"));
    EXPECT_EQ(Entry("f10.syn").at("status"), "failed");
    const auto files = std::distance(fs::directory_iterator(m_target), fs::directory_iterator());
    EXPECT_EQ(files, 20) << "19 targets and the report folder, and nothing unfinished";
}

TEST_F(Conversion, PermissionsAndTimesAreKept) {
    Put("a/x.syn", kTable);
    fs::permissions(m_source / "a/x.syn", fs::perms(0640));
    fs::permissions(m_source / "a", fs::perms(0750));
    const struct timespec times[] = {{1000000000, 123456789}, {900000000, 987654321}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (m_source / "a/x.syn").c_str(), times, 0), 0);
    EXPECT_EQ(Run().status, 0);
    struct stat target {};
    ASSERT_EQ(::stat((m_target / "a/x.syn").c_str(), &target), 0);
    EXPECT_EQ(target.st_mode & 07777U, 0640U);
    EXPECT_EQ(target.st_mtim.tv_sec, 900000000);
    EXPECT_EQ(target.st_mtim.tv_nsec, 987654321);
    EXPECT_EQ(fs::status(m_target / "a").permissions(), fs::perms(0750));
    EXPECT_EQ(Entry("a/x.syn").at("modified"), "1998-07-09T16:00:00.987654321Z");
}

TEST_F(Conversion, PatternsChooseTheFiles) {
    for (const std::string path : {"a.syn", "B.SYN", "c.txt", "old/d.syn", "x/old/e.syn"}) {
        Put(path, kTable);
    }
    Run();
    EXPECT_THAT(Paths(), ElementsAre("B.SYN", "a.syn", "old/d.syn", "x/old/e.syn"));
    Run({"--include", "*.txt", "--include=[ab].syn"});
    EXPECT_THAT(Paths(), ElementsAre("a.syn", "c.txt"));
    Run({"--exclude", "old"});
    EXPECT_THAT(Paths(), ElementsAre("B.SYN", "a.syn"));
    Run({"--exclude=x/*"});
    EXPECT_THAT(Paths(), ElementsAre("B.SYN", "a.syn", "old/d.syn"));
}

TEST_F(Conversion, BatchRulesAreUsedWhenAskedFor) {
    Put("a.syn", "TABLES /TABLE sex BY region\nFREQ x\n");
    Run();
    EXPECT_EQ(Entry("a.syn").at("status"), "incomplete");
    Run({"--batch"});
    EXPECT_EQ(Entry("a.syn").at("status"), "converted");
    EXPECT_EQ(Entry("a.syn").at("settings"), "batch, auto");
}

TEST_F(Conversion, EncodingIsUtf8WhereValidElseAny8Bit) {
    Put("utf8.syn", "TITLE '\xC3\xA9'.\n");
    Put("other.syn", "TITLE '\xE9'.\nTABLES /TABLE \xE9t\xE9 /STATISTICS \xE9.\n");
    Run();
    EXPECT_EQ(Entry("utf8.syn").at("encoding"), "UTF-8");
    EXPECT_EQ(Entry("other.syn").at("encoding"), "8-bit");
    EXPECT_EQ(Entry("other.syn").at("commands").at(0).at("error").at("text"),
              "Unrecognized summary function \xC3\xA9");
    EXPECT_THAT(Target("other.syn"), HasSubstr("TITLE '\xE9'."));
}

TEST_F(Conversion, NamedEncodingIsThatOfAnInstalledLocale) {
    // The C library forgets to free a copy of this path.
    const std::vector<std::string> locales{"LOCPATH=" RECASTOR_TEST_LOCALES,
                                           "ASAN_OPTIONS=detect_leaks=0"};
    // The second byte of this character of two bytes is a quote's look-alike in ASCII: "`".
    Put("a.syn", "TITLE '\x83\x60'.\n" + kTable);
    EXPECT_EQ(Run({"--encoding=ja_JP.SHIFT_JIS"}, locales).status, 0);
    EXPECT_EQ(Entry("a.syn").at("encoding"), "ja_JP.SHIFT_JIS");
    const RunResult unknown = Run({"--encoding=nonsense"}, locales);
    EXPECT_EQ(unknown.status, 2);
    EXPECT_THAT(
        unknown.errors,
        testing::StartsWith("--encoding: no locale is installed that has the encoding nonsense"));
}

TEST_F(Conversion, DryRunAndCheckWriteNothing) {
    Put("a.syn", kTable);
    const RunResult dry = Run({"--dry-run"});
    EXPECT_EQ(dry.status, 0);
    EXPECT_THAT(dry.output, HasSubstr("1 targets would change\n"));
    EXPECT_EQ(Run({"--check"}).status, 1);
    EXPECT_FALSE(fs::exists(m_target));
    EXPECT_EQ(Run({"--dry-run", "--report", m_folder.Path() / "report"}).status, 0);
    EXPECT_FALSE(fs::exists(m_target));
    EXPECT_TRUE(fs::exists(m_folder.Path() / "report/report.json"));
}

TEST_F(Conversion, CheckTellsWhetherATargetWouldChange) {
    Put("a.syn", kTable);
    Put("wrong.syn", kWrongTable);
    Run();
    EXPECT_EQ(Run({"--check"}).status, 0);
    WriteFile(m_target / "a.syn", "something else");
    EXPECT_EQ(Run({"--check"}).status, 1);
}

TEST_F(Conversion, QuietTellsOnlyWhatFailed) {
    Put("a.syn", kTable);
    const RunResult well = Run({"--quiet"});
    EXPECT_EQ(well.output + well.errors, "");
    Put("b.syn", kCrash);
    const RunResult crashed = Run({"-q"});
    EXPECT_EQ(crashed.output, "");
    EXPECT_THAT(crashed.errors, HasSubstr("recastor-tree: b.syn: the converter crashed"));
}

TEST_F(Conversion, FolderWithoutFilesIsDone) {
    const RunResult result = Run();
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("0 files"));
    EXPECT_EQ(Report().at("files").size(), 0U);
}

} // namespace

} // namespace recastor
