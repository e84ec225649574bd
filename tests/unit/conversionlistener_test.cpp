// What the driver's loop tells its listener, one line an event.

#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/conversionlistener.h"
#include "ctables/recastor/recastor.h"
#include "platform/zelkwigr/igraphspec.h"
#include "tests/support/run.h"
#include "tests/support/textlocale.h"

#include <array>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace recastor {

namespace {

class Transcript : public ConversionListener {
public:
    void OnCommand(ReportedKind kind, std::int64_t firstLine, std::string_view text) override {
        constexpr std::array names{"tables", "igraph", "comment", "document", "data", "other"};
        m_text << names.at(static_cast<std::size_t>(kind)) << ' ' << firstLine << ": " << text;
    }
    void OnTree(const TbTrParseNode& root) override { m_tree = &root; }
    void OnChart(const iGraphSpec& spec) override {
        m_text << "chart named '" << spec.getViewName() << "'\n";
    }
    void OnConverted(std::string_view text, const std::vector<std::string>& warnings) override {
        for (const std::string& warning : warnings) {
            m_text << "warning: " << warning << '\n';
        }
        m_text << "converted: " << text.substr(0, text.find('\n')) << '\n';
    }
    void OnNotConverted(const ConversionError& error) override { Tell("not converted", error); }
    void OnEnd(const ConversionError& error) override { Tell("end", error); }

    std::string Text() const { return m_text.str(); }
    bool HeardTree() const { return m_tree != nullptr; }

private:
    void Tell(const char* what, const ConversionError& error) {
        m_text << what << ' ' << error.line << '/' << error.column << ": " << error.text << '\n';
    }

    std::ostringstream m_text;
    const TbTrParseNode* m_tree = nullptr;
};

class Listening : public Utf8Test {
protected:
    std::string Hear(const std::string& file, bool batch = false) {
        Transcript transcript;
        m_output = Convert(file, batch, transcript);
        m_heardTree = transcript.HeardTree();
        return transcript.Text();
    }

    static std::string Convert(const std::string& file, bool batch, ConversionListener& listener) {
        std::istringstream input(file);
        std::ostringstream output;
        CommandStream commands(input, batch);
        const CapturedStreams streams;
        ConvertCommands(commands, batch, output, listener);
        return output.str();
    }

    std::string m_output;
    bool m_heardTree = false;
};

TEST_F(Listening, EveryKindOfCommandIsToldWithItsFirstLine) {
    EXPECT_EQ(Hear("FREQ\n\n  x.\n\n* it's.\nDOCUMENT a.\nBEGIN DATA\n1\nEND DATA.\n"),
              "other 1: FREQ\n\n  x\n"
              "comment 5: * it's\n"
              "document 6: DOCUMENT a\n"
              "data 7: BEGIN DATA\n1\nEND DATA.\n");
}

TEST_F(Listening, ConvertedTablesCommandHasATreeWarningsAndANewForm) {
    EXPECT_EQ(Hear("\nTABLES /WRITE x\n /TABLE sex BY region.\n"),
              "tables 2: TABLES /WRITE x\n /TABLE sex BY region\n"
              "warning: Obsolete subcommand WRITE has been ignored.\n"
              "converted: CTABLES\n");
    EXPECT_TRUE(m_heardTree);
}

TEST_F(Listening, TablesCommandThatCannotBeParsedHasAPlaceInTheFileAndNoTree) {
    EXPECT_EQ(Hear("FREQ x.\nTABLES /TABLE.\n"),
              "other 1: FREQ x\n"
              "tables 2: TABLES /TABLE\n"
              "not converted 2/9: Unable to parse the syntax of the TABLE subcommand\n");
    EXPECT_FALSE(m_heardTree);
}

TEST_F(Listening, ColumnOfACommandThatIsNotConvertedCountsFromOneOnEveryLine) {
    EXPECT_EQ(Hear("TABLES /TABLE x /STATISTICS none.\n"),
              "tables 1: TABLES /TABLE x /STATISTICS none\n"
              "not converted 1/29: Unrecognized summary function none\n");
    EXPECT_NE(m_output.find("Line 1, column 30."), std::string::npos) << m_output;
    EXPECT_EQ(Hear("FREQ x.\n\nTABLES /TABLE x\n /STATISTICS none.\n"),
              "other 1: FREQ x\n"
              "tables 3: TABLES /TABLE x\n /STATISTICS none\n"
              "not converted 4/14: Unrecognized summary function none\n");
    EXPECT_NE(m_output.find("Line 4, column 14."), std::string::npos) << m_output;
}

TEST_F(Listening, TablesCommandThatCannotBeTranslatedHasATree) {
    EXPECT_EQ(Hear("TABLES /TABLE x /STATISTICS\nnone.\n"),
              "tables 1: TABLES /TABLE x /STATISTICS\nnone\n"
              "not converted 2/1: Unrecognized summary function none\n");
    EXPECT_TRUE(m_heardTree);
}

TEST_F(Listening, IgraphCommandHasAChart) {
    EXPECT_EQ(Hear("IGRAPH /VIEWNAME='Sex' /X1=VAR(sex) TYPE=CATEGORICAL /Y=$count /BAR.\n"),
              "igraph 1: IGRAPH /VIEWNAME='Sex' /X1=VAR(sex) TYPE=CATEGORICAL /Y=$count /BAR\n"
              "chart named 'Sex'\n"
              "converted: GGRAPH\n");
}

TEST_F(Listening, IgraphCommandThatIsNotValidHasAnErrorWithoutAPlace) {
    EXPECT_EQ(Hear("IGRAPH /X.\n"),
              "igraph 1: IGRAPH /X\n"
              "not converted 0/0: *IGRAPH syntax is not valid, and can't be converted!\n");
}

TEST_F(Listening, TextWithoutTokensEndsTheFile) {
    EXPECT_EQ(Hear("FREQ x.\nTITLE\n 'a\n"),
              "other 1: FREQ x\n"
              "end 3/4: Literal unclosed at the end of a line or command\n");
    EXPECT_EQ(Hear("x y 1e+.\nFREQ x.\n"),
              "other 1: x y 1e+\n"
              "end 1/8: Number has a trailing E[+|-] but no digits after that.\n");
}

TEST_F(Listening, BatchCommandsAreToldWithTheirLines) {
    EXPECT_EQ(Hear("FREQ x\n y\n\n* a\n+TABLES /TABLE sex BY region\n", true),
              "other 1: FREQ x\n y\n"
              "comment 4: * a\n"
              "tables 5: +TABLES /TABLE sex BY region\n"
              "converted: CTABLES\n");
}

TEST_F(Listening, ByteOrderMarkIsNoPartOfTheFirstCommand) {
    EXPECT_EQ(Hear("\xEF\xBB\xBF"
                   "FREQ x.\n"),
              "other 1: FREQ x\n");
}

TEST_F(Listening, OutputIsTheSameWhoeverListens) {
    const std::string file = "FREQ x.\nTABLES /TABLE sex BY region.\nIGRAPH /X.\nx `.\n";
    Hear(file);
    EXPECT_EQ(m_output, Convert(file, false, SilentListener()));
}

} // namespace

} // namespace recastor
