#include "ctables/recastor/mbcharpointer.h"

#include "platform/zelkbase/zelkassert.h"
#include "platform/zelkmb/zelkmb.h"

#include <cstring>

namespace recastor {

namespace {

/// A high byte gives a negative code, whatever the signedness of char.
int SignExtended(char byte) {
    const int value = static_cast<unsigned char>(byte);
    return value < 128 ? value : value - 256;
}

} // namespace

MBCharPointer::MBCharPointer(const char* text) : m_ptr(text), m_charCount(std::strlen(text) + 1) {
    Next();
}

int MBCharPointer::StepOntoLongCharacter() {
    const int length = ZELKMBmblen_A(m_ptr, m_charCount);
    if (length < 1) {
        m_code = 0;
        m_charLen = 1;
        m_charCount = 1;
    } else {
        m_charLen = length;
        m_code = length == 1 ? SignExtended(*m_ptr) : kMultibyte;
    }
    return m_code;
}

/// The terminating NUL is counted, so a cursor that has not met it has bytes left.
void MBCharPointer::FailStep() {
    AssertionFailed("m_charCount == m_charLen && m_code == 0", "Next", __FILE__);
}

} // namespace recastor
