// The reports are what their formats say.

#include "archive/report/filepage.h"
#include "tests/archive/archivetree.h"

#include <algorithm>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <gmock/gmock.h>

namespace recastor {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// The schema that we ship lets new members come; this program knows of no others.
void AllowNoOtherMembers(nlohmann::json& schema) {
    if (!schema.is_structured()) {
        return;
    }
    for (auto& part : schema) {
        AllowNoOtherMembers(part);
    }
    if (schema.contains("properties")) {
        schema["additionalProperties"] = false;
    }
}

nlohmann::json ShippedSchema() {
    return nlohmann::json::parse(ReadFile(fs::path(RECASTOR_ROOT) / "docs/report.schema.json"));
}

nlohmann::json StrictSchema() {
    nlohmann::json schema = ShippedSchema();
    AllowNoOtherMembers(schema);
    return schema;
}

/// What is wrong with a document; empty when nothing is.
std::string Violations(const nlohmann::json& document, const nlohmann::json& text) {
    valijson::Schema schema;
    valijson::SchemaParser parser;
    parser.populateSchema(valijson::adapters::NlohmannJsonAdapter(text), schema);
    valijson::ValidationResults results;
    valijson::Validator validator;
    validator.validate(schema, valijson::adapters::NlohmannJsonAdapter(document), &results);
    std::string violations;
    valijson::ValidationResults::Error error;
    while (results.popError(error)) {
        for (const std::string& place : error.context) {
            violations += place;
        }
        violations += ": " + error.description + '\n';
    }
    return violations;
}

/// The cells of a table of RFC 4180.
std::vector<std::vector<std::string>> ReadCsv(const std::string& text) {
    std::vector<std::vector<std::string>> rows{{""}};
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"' && quoted && i + 1 < text.size() && text[i + 1] == '"') {
            rows.back().back() += text[i++];
        } else if (text[i] == '"') {
            quoted = !quoted;
        } else if (text[i] == ',' && !quoted) {
            rows.back().emplace_back();
        } else if (text.compare(i, 2, "\r\n") == 0 && !quoted) {
            rows.push_back({""});
            ++i;
        } else {
            rows.back().back() += text[i];
        }
    }
    rows.pop_back(); // behind the last line end
    return rows;
}

class Reports : public ArchiveTree {
protected:
    Reports() {
        Put("a,\"b\".syn", "FREQ x.\nTABLES /WRITE x /TABLE sex.\n");
        Put("d/crash.syn", kCrash);
        Put("d/ended.syn", "FREQ x.\nTITLE 'a\n");
        Put("d/missed.syn", "COMMENT open\nTABLES /TABLE x.\n");
        Put("d/wrong.syn", kWrongTable + "IGRAPH /X.\n");
        fs::create_symlink("nothing", m_source / "e.syn");
        Run();
    }
};

TEST_F(Reports, JsonIsAsItsSchemaSays) {
    EXPECT_EQ(Violations(Report(), StrictSchema()), "");
    nlohmann::json wrong = Report();
    wrong["files"][0]["status"] = "unheard of";
    EXPECT_NE(Violations(wrong, ShippedSchema()), "") << "the schema must be able to tell";
}

TEST_F(Reports, SchemaLetsNewMembersCome) {
    for (const std::string place :
         {"", "/run", "/totals", "/files/0", "/files/0/commands/0", "/files/4/commands/0/error"}) {
        nlohmann::json later = Report();
        later[nlohmann::json::json_pointer(place)]["new"] = 1;
        EXPECT_EQ(Violations(later, ShippedSchema()), "") << place;
        EXPECT_NE(Violations(later, StrictSchema()), "") << place;
    }
}

TEST_F(Reports, ManifestHoldsTheFilesOfTheReportLineByLine) {
    std::istringstream lines(ReadFile(m_report / "manifest.jsonl"));
    nlohmann::json files = nlohmann::json::array();
    for (std::string line; std::getline(lines, line);) {
        files.push_back(nlohmann::json::parse(line));
    }
    EXPECT_EQ(files, Report().at("files"));
}

TEST_F(Reports, CsvHasARowForEachFile) {
    const auto rows = ReadCsv(ReadFile(m_report / "report.csv"));
    ASSERT_EQ(rows.size(), 7U);
    for (const auto& row : rows) {
        EXPECT_EQ(row.size(), 14U);
    }
    EXPECT_EQ(rows[0][0], "path");
    EXPECT_EQ(rows[1][0], "a,\"b\".syn");
    EXPECT_EQ(rows[1][1], "converted");
    EXPECT_EQ(rows[1][3], "1") << "converted commands";
    EXPECT_EQ(rows[1][6], "1") << "warnings";
    EXPECT_EQ(rows[2][1], "failed");
    EXPECT_EQ(rows[5][4], "2") << "commands not converted";
    EXPECT_EQ(rows[6][2], "is a link to nothing");
}

TEST_F(Reports, SarifNamesThePlaceOfEachResult) {
    const nlohmann::json sarif = ReadJson(m_report / "report.sarif");
    EXPECT_EQ(sarif.at("version"), "2.1.0");
    const nlohmann::json& run = sarif.at("runs").at(0);
    const nlohmann::json& rules = run.at("tool").at("driver").at("rules");
    std::vector<std::string> told;
    for (const auto& result : run.at("results")) {
        const auto& place = result.at("locations").at(0).at("physicalLocation");
        EXPECT_EQ(result.at("ruleId"),
                  rules.at(result.at("ruleIndex").get<std::size_t>()).at("id"));
        EXPECT_FALSE(result.at("message").at("text").get<std::string>().empty());
        told.push_back(place.at("artifactLocation").at("uri").get<std::string>() + ' ' +
                       result.at("ruleId").get<std::string>() + ' ' +
                       result.at("level").get<std::string>() + ' ' +
                       place.value("region", nlohmann::json(nullptr)).dump());
    }
    EXPECT_THAT(told,
                ElementsAre("a%2C%22b%22.syn left-out warning {\"startLine\":2}",
                            "d/crash.syn file-failed error null",
                            "d/ended.syn file-ended error {\"startColumn\":9,\"startLine\":2}",
                            "d/missed.syn possibly-missed warning {\"startLine\":2}",
                            "d/wrong.syn command-not-converted error "
                            "{\"startColumn\":9,\"startLine\":1}",
                            "d/wrong.syn command-not-converted error {\"startLine\":2}",
                            "e.syn file-skipped warning null"));
}

TEST_F(Reports, EveryFileWithSomethingToShowHasAPage) {
    const std::string index = ReadFile(m_report / "index.html");
    for (const std::string path : {"a,\"b\".syn", "d/crash.syn", "d/ended.syn", "e.syn"}) {
        const std::string page = FilePageName(path);
        EXPECT_TRUE(fs::exists(m_report / page)) << path;
        EXPECT_THAT(index, HasSubstr(page));
    }
    EXPECT_TRUE(fs::exists(m_report / "assets/file.js"));
    EXPECT_TRUE(fs::exists(m_report / "assets/report.css"));
}

TEST_F(Reports, PageShowsTheCommandsAndPicturesOfBothForms) {
    const std::string page = ReadFile(m_report / FilePageName("a,\"b\".syn"));
    EXPECT_THAT(page, HasSubstr(R"("oldText":"TABLES /WRITE x /TABLE sex.")"));
    EXPECT_THAT(page, HasSubstr(R"("newText":"CTABLES\n)"));
    EXPECT_THAT(page, HasSubstr(R"("oldPicture":{"emptyCells")"));
    EXPECT_THAT(page, HasSubstr(R"("newPicture":{"emptyCells")"));
}

TEST_F(Reports, ChartIsSketched) {
    Put("chart.syn", "IGRAPH /X1=VAR(sex) TYPE=CATEGORICAL /Y=$count /BAR.\n");
    Run();
    EXPECT_THAT(ReadFile(m_report / FilePageName("chart.syn")),
                HasSubstr(R"("chartSketch":{"form":"plain")"));
}

TEST_F(Reports, PageThatIsMissingIsMadeAgain) {
    fs::remove(m_report / FilePageName("d/wrong.syn"));
    Run();
    EXPECT_TRUE(fs::exists(m_report / FilePageName("d/wrong.syn")));
}

TEST_F(Reports, ReportsOfTheSameManifestAreTheSame) {
    // A file that failed is tried again, which takes its own time.
    const auto rows = [&] {
        auto all = ReadCsv(ReadFile(m_report / "report.csv"));
        const auto& names = all.front();
        const auto column = std::find(names.begin(), names.end(), "milliseconds") - names.begin();
        for (auto& row : all) {
            row.erase(row.begin() + column);
        }
        return all;
    };
    const auto before = rows();
    const auto report = Comparable(Report());
    EXPECT_EQ(Run().status, 1);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(Comparable(Report()), report);
    EXPECT_EQ(Violations(Report(), StrictSchema()), "");
}

} // namespace

} // namespace recastor
