#include "archive/outcome/jsonwriter.h"

#include <limits>

#include <gtest/gtest.h>

namespace recastor {

namespace {

std::string Quoted(std::string_view text) {
    JsonWriter json;
    json.String(text);
    return json.Text();
}

TEST(JsonWriter, SeparatesValuesAndMembers) {
    JsonWriter json;
    json.BeginObject();
    json.Member("a", "x");
    json.Key("b");
    json.BeginArray();
    json.Null();
    json.Bool(true);
    json.BeginObject();
    json.EndObject();
    json.BeginArray();
    json.EndArray();
    json.Json("[1]");
    json.EndArray();
    json.Member("c", false);
    json.Member("d", std::int64_t{-3});
    json.Member("e", std::uint64_t{4});
    json.Member("f", std::vector<std::string>{"x", "y"});
    json.EndObject();
    EXPECT_EQ(json.Text(),
              R"({"a":"x","b":[null,true,{},[],[1]],"c":false,"d":-3,"e":4,"f":["x","y"]})");
}

TEST(JsonWriter, EscapesWhatMeansSomething) {
    EXPECT_EQ(Quoted("a\"b\\c\nd\te"), R"("a\"b\\c\nd\u0009e")");
    EXPECT_EQ(Quoted(std::string_view("\0\x1F\x7F", 3)), R"("\u0000\u001f\u007f")");
    EXPECT_EQ(Quoted("</script>"), R"("\u003c/script>")");
}

TEST(JsonWriter, LeavesCharactersOfSeveralBytesAlone) {
    EXPECT_EQ(Quoted("\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80"),
              "\"\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80\"");
}

TEST(JsonWriter, ReplacesWhatIsNoUtf8) {
    EXPECT_EQ(Quoted("a\xE4z"), "\"a\xEF\xBF\xBDz\"");
    EXPECT_EQ(Quoted("\xC3"), "\"\xEF\xBF\xBD\"");
}

TEST(JsonWriter, NumbersReadBackAsTheyAre) {
    JsonWriter json;
    json.BeginArray();
    json.Number(5);
    json.Number(0.1);
    json.Number(std::numeric_limits<double>::infinity());
    json.EndArray();
    EXPECT_EQ(json.Text(), "[5,0.1,null]");
}

} // namespace

} // namespace recastor
