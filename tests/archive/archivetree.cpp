#include "tests/archive/archivetree.h"

namespace recastor {

namespace fs = std::filesystem;

ArchiveTree::ArchiveTree() :
    m_source(m_folder.Path() / "source"), m_target(m_folder.Path() / "target"),
    m_report(m_target / "recastor-report") {
    fs::create_directory(m_source);
}

void ArchiveTree::Put(const std::string& path, const std::string& text) const {
    fs::create_directories((m_source / path).parent_path());
    WriteFile(m_source / path, text);
}

bool ArchiveTree::HasTarget(const std::string& path) const {
    return fs::exists(fs::symlink_status(m_target / path));
}

RunResult ArchiveTree::Run(const std::vector<std::string>& options,
                           const std::vector<std::string>& environment) const {
    std::vector<std::string> arguments = options;
    arguments.push_back(m_source);
    arguments.push_back(m_target);
    return RunWith(arguments, environment);
}

RunResult ArchiveTree::RunWith(const std::vector<std::string>& arguments,
                               const std::vector<std::string>& environment) const {
    return RunProgram(RECASTOR_TREE_PROGRAM, arguments, m_folder.Path(), environment);
}

nlohmann::json ArchiveTree::ReadJson(const fs::path& path) {
    return nlohmann::json::parse(ReadFile(path));
}

nlohmann::json ArchiveTree::Entry(const std::string& path) const {
    const nlohmann::json report = Report();
    for (const auto& entry : report.at("files")) {
        if (entry.at("path") == path) {
            return entry;
        }
    }
    return nullptr;
}

std::vector<std::string> ArchiveTree::Paths() const {
    std::vector<std::string> paths;
    const nlohmann::json report = Report();
    for (const auto& entry : report.at("files")) {
        paths.push_back(entry.at("path"));
    }
    return paths;
}

nlohmann::json Comparable(nlohmann::json report) {
    for (auto& entry : report.at("files")) {
        entry.erase("milliseconds");
    }
    report.erase("run");
    return report;
}

} // namespace recastor
