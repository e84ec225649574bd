/// A folder of syntax files and runs of recastor-tree over it.
#pragma once

#include "tests/support/run.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace recastor {

inline const std::string kTable = "TABLES /TABLE sex BY region.\n";
inline const std::string kWrongTable = "TABLES /TABLE.\n";
/// The one command that a check of the converter's own stops at.
inline const std::string kCrash = "TABLES /FORMAT=ZERO BLANK /TABLE sex.\n";

class ArchiveTree : public testing::Test {
protected:
    ArchiveTree();

    /// Writes a file of the source folder, and the folders on the way.
    void Put(const std::string& path, const std::string& text) const;
    std::string Target(const std::string& path) const { return ReadFile(m_target / path); }
    bool HasTarget(const std::string& path) const;

    /// Runs the program with the options in front of the two folders.
    RunResult Run(const std::vector<std::string>& options = {},
                  const std::vector<std::string>& environment = {}) const;
    RunResult RunWith(const std::vector<std::string>& arguments,
                      const std::vector<std::string>& environment = {}) const;

    /// A report of the last run.
    nlohmann::json Report() const { return ReadJson(m_report / "report.json"); }
    static nlohmann::json ReadJson(const std::filesystem::path& path);
    /// The report's entry of a file; null when it has none.
    nlohmann::json Entry(const std::string& path) const;
    /// The entries' paths, in their order.
    std::vector<std::string> Paths() const;

    TemporaryFolder m_folder;
    std::filesystem::path m_source;
    std::filesystem::path m_target;
    std::filesystem::path m_report;
};

/// A report's files without what differs from run to run.
nlohmann::json Comparable(nlohmann::json report);

} // namespace recastor
