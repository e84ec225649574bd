// Manifests: read in their order, joined, and looked up while the next is written.

#include "archive/outcome/outcomejson.h"
#include "archive/tree/manifest.h"
#include "archive/tree/systemerror.h"
#include "tests/support/run.h"

#include <sys/resource.h>

#include <gtest/gtest.h>

namespace recastor {

namespace fs = std::filesystem;

namespace {

std::string LineOf(const std::string& path, const std::string& message) {
    OutcomeRecord record;
    record.outcome.path = path;
    record.outcome.message = message;
    return OutcomeLine(record);
}

class Manifests : public testing::Test {
protected:
    std::string Put(const std::string& name, const std::vector<std::string>& lines,
                    const std::string& rest = "") const {
        std::string text;
        for (const std::string& line : lines) {
            text += line + '\n';
        }
        WriteFile(m_folder.Path() / name, text + rest);
        return m_folder.Path() / name;
    }

    std::string Folder() const { return m_folder.Path(); }

    TemporaryFolder m_folder;
};

TEST_F(Manifests, LinesThatAreNoneArePassedOver) {
    const std::string a = LineOf("a", "");
    ManifestReader reader(Put("m", {"junk", a, ""}, a.substr(0, a.size() - 5)));
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Path(), "a");
    EXPECT_EQ(reader.Line(), a);
    EXPECT_FALSE(reader.Next());
}

TEST_F(Manifests, MissingManifestHasNoLines) {
    ManifestReader reader(Folder() + "/none");
    EXPECT_FALSE(reader.Next());
}

TEST_F(Manifests, OneThatCannotBeReadIsTold) {
    fs::create_directory(Folder() + "/folder");
    ManifestReader reader(Folder() + "/folder");
    EXPECT_THROW(reader.Next(), FileError);
    fs::create_directory(RunManifest::FileName(Folder()));
    EXPECT_THROW(RunManifest{Folder()}, FileError);
}

TEST_F(Manifests, LinesLongerThanABlockAreRead) {
    const std::string a = LineOf("a", std::string(200000, 'x'));
    const std::string b = LineOf("b", std::string(65536, 'y'));
    ManifestReader reader(Put("m", {a, "", b}));
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Line(), a);
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Line(), b);
    EXPECT_FALSE(reader.Next());
    EXPECT_FALSE(reader.Next());
}

TEST_F(Manifests, MoreThanAProcessMayHaveOpenAreJoined) {
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    struct rlimit few = before;
    few.rlim_cur = 40;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    std::vector<std::string> names;
    for (int i = 0; i < 50; ++i) {
        const std::string name = "m" + std::to_string(i);
        names.push_back(Put(name, {LineOf(name, "")}));
    }
    int lines = 0;
    for (MergedManifests merged(names); merged.Next();) {
        ++lines;
    }
    EXPECT_EQ(lines, 50);
    ::setrlimit(RLIMIT_NOFILE, &before);
}

TEST_F(Manifests, JoinedInTheOrderOfTheWalkTheLastCounts) {
    MergedManifests merged({Put("1", {LineOf("a/b", "1"), LineOf("a.b", "1"), LineOf("c", "1")}),
                            Put("2", {LineOf("a/b", "2"), LineOf("b", "2")}), Put("3", {}),
                            Put("4", {LineOf("b", "4"), LineOf("d", "4")})});
    std::string told;
    while (merged.Next()) {
        told += merged.Path() + '=' + ReadOutcomeLine(merged.Line())->outcome.message + ' ';
    }
    EXPECT_EQ(told, "a/b=2 a.b=1 b=4 c=1 d=4 ");
    EXPECT_FALSE(merged.Next());
}

TEST_F(Manifests, EarlierLinesAreFoundInTheOrderOfTheWalk) {
    Put("manifest.jsonl", {LineOf("a", "1"), LineOf("b", "1"), LineOf("d", "1"), LineOf("e", "1")});
    RunManifest manifest(Folder());
    EXPECT_EQ(manifest.PreviousLine("a"), LineOf("a", "1"));
    EXPECT_EQ(manifest.PreviousLine("c"), "");
    EXPECT_EQ(manifest.PreviousLine("d"), LineOf("d", "1"));
    manifest.Add(LineOf("a", "2"));
    EXPECT_EQ(manifest.TakeRest(), LineOf("e", "1"));
    EXPECT_EQ(manifest.TakeRest(), std::nullopt);
    EXPECT_EQ(manifest.PreviousLine("f"), "");
    manifest.Finish();
    EXPECT_EQ(ReadFile(RunManifest::FileName(Folder())), LineOf("a", "2") + '\n');
}

TEST_F(Manifests, UnfinishedOneIsJoinedWithTheEarlierOne) {
    Put("manifest.jsonl", {LineOf("a", "1"), LineOf("b", "1")});
    Put("manifest.jsonl.part", {LineOf("a", "2")}, "{\"uri\":\"b");
    RunManifest manifest(Folder());
    EXPECT_EQ(manifest.PreviousLine("a"), LineOf("a", "2"));
    EXPECT_EQ(manifest.PreviousLine("b"), LineOf("b", "1"));
}

} // namespace

} // namespace recastor
