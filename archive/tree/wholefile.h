/// A text file that stands in its place only when it is whole.
#pragma once

#include <fstream>
#include <string>

namespace recastor {

class WholeFile {
public:
    /// Throws FileError when a file cannot be written beside `fileName`.
    explicit WholeFile(std::string fileName);
    /// Removes the file unless Finish() put it in its place.
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    std::ostream& Stream() { return m_stream; }
    /// Throws FileError when any of it could not be written.
    void Finish();

private:
    std::string m_fileName;
    std::ofstream m_stream;
};

} // namespace recastor
