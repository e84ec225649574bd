#include "archive/tree/wholefile.h"

#include "archive/tree/systemerror.h"

#include <cstdio>
#include <utility>

namespace recastor {

namespace {

std::string Unfinished(const std::string& fileName) {
    return fileName + ".part";
}

} // namespace

WholeFile::WholeFile(std::string fileName) :
    m_fileName(std::move(fileName)),
    m_stream(Unfinished(m_fileName), std::ios::binary | std::ios::trunc) {
    if (!m_stream) {
        throw SystemError("cannot write " + m_fileName);
    }
}

WholeFile::~WholeFile() {
    if (m_stream.is_open()) {
        m_stream.close();
        static_cast<void>(std::remove(Unfinished(m_fileName).c_str()));
    }
}

void WholeFile::Finish() {
    m_stream.flush();
    if (!m_stream || std::rename(Unfinished(m_fileName).c_str(), m_fileName.c_str()) != 0) {
        throw SystemError("cannot write " + m_fileName);
    }
    m_stream.close();
}

} // namespace recastor
