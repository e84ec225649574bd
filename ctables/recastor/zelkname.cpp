#include "ctables/recastor/zelkname.h"

#include "ctables/recastor/abbreviation.h"
#include "ctables/recastor/lexicalchars.h"
#include "platform/zelkmb/zelkmb.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace recastor {

namespace {

/// The words of the language that cannot be names.
constexpr std::array<std::string_view, 13> resvWds = {"ALL", "AND", "BY",  "EQ", "GE", "GT",  "LE",
                                                      "LT",  "NE",  "NOT", "OR", "TO", "WITH"};
/// No reserved word is longer.
constexpr std::size_t kLongestReservedWord = 4;

/// The reserved words as numbers, since every short name is looked up there.
constexpr auto gPackedResvWds = [] {
    std::array<std::uint32_t, resvWds.size()> packed{};
    std::transform(resvWds.begin(), resvWds.end(), packed.begin(), PackUpperCased);
    return packed;
}();

/// The letters that they begin with, which tell most names apart from them.
constexpr CharSet gResvWdStarts = CharSet::Where([](int code) {
    return std::any_of(resvWds.begin(), resvWds.end(),
                       [code](std::string_view word) { return BeginsWith(word, code); });
});

/// The punctuation that names may hold.
constexpr std::string_view specials = "@#$_.";
constexpr std::string_view Digits = "0123456789";

constexpr std::string_view szLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr int nLetters = 26;

/// Longer numbers are not made into names.
constexpr std::size_t kLongestNumericName = 7;

/// Which single bytes a name may hold: letters, digits, the specials and every high byte.
constexpr auto gNameBytes = [] {
    std::array<bool, 256> bytes{};
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        bytes[byte] = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte >= 0x80;
    }
    for (const std::string_view set : {Digits, specials}) {
        for (const char c : set) {
            bytes[static_cast<unsigned char>(c)] = true;
        }
    }
    return bytes;
}();

bool IsSingleByteNameChar(char c) {
    return gNameBytes[static_cast<unsigned char>(c)];
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

bool HoldsOnlyNameChars(std::string_view name) {
    while (!name.empty()) {
        const bool ascii = static_cast<unsigned char>(name.front()) < 0x80;
        const int charLength = ascii ? 1 : ZELKMBmblen_A(name.data(), name.size());
        if (charLength < 1 || (charLength == 1 && !IsSingleByteNameChar(name.front()))) {
            return false;
        }
        name.remove_prefix(static_cast<std::size_t>(charLength));
    }
    return true;
}

bool IsReservedWord(std::string_view name) {
    if (name.size() > kLongestReservedWord || !gResvWdStarts.HasAscii(name.front())) {
        return false;
    }
    const std::uint32_t packed = PackUpperCased(name);
    return std::find(gPackedResvWds.begin(), gPackedResvWds.end(), packed) != gPackedResvWds.end();
}

/// Whether the last `mark` of `name` ends it, blanks and control characters aside.
bool EndsWithMark(const char* name, char mark) {
    const char* last = ZELKMBstrrchr_A(name, mark);
    return last != nullptr && static_cast<unsigned char>(last[1]) < 33;
}

std::string SuffixLetters(int index) {
    std::string letters(1, szLetters[static_cast<std::size_t>(index % nLetters)]);
    for (int q = index / nLetters; q > 0; q = (q - 1) / nLetters) {
        letters.insert(letters.begin(), szLetters[static_cast<std::size_t>((q - 1) % nLetters)]);
    }
    return letters;
}

/// The characters of `text` that a name may hold, up to the longest name.
std::string NameCharsOf(const char* text) {
    std::string kept;
    const char* const end = text + std::strlen(text);
    while (text != end && kept.size() < kLongestZELKName) {
        const int charLength = ZELKMBmblen_A(text, static_cast<std::size_t>(end - text));
        const auto step = static_cast<std::size_t>(std::max(1, charLength));
        if (IsValidZelkNameChar(text)) {
            kept.append(text, step);
        }
        text += step;
    }
    ZELKMBStringTruncate_A(kept, kLongestZELKName);
    return kept;
}

void PutAtSignInFront(std::string& name) {
    name.insert(name.begin(), '@');
    ZELKMBStringTruncate_A(name, kLongestZELKName);
}

/// Mends `name` until it is valid or nothing helps; the last result of the check.
int MendName(std::string& name) {
    for (;;) {
        const int result = ValidateZELKNameCheckLastChar(name.c_str());
        switch (result) {
        // Scratch and system names are valid, but no names to give to a variable.
        case kScratchName:
        case kSystemName:
        case kReservedWord:
        case kBadNameStart:
            PutAtSignInFront(name);
            break;
        case kNameEndsInPeriod:
        case kNameEndsInUnderscore:
            if (name.size() < 2) {
                return result;
            }
            ZELKMBStringTruncate_A(name, name.size() - 1);
            break;
        default:
            return result;
        }
    }
}

} // namespace

int ValidateZELKName(const char* name) {
    return ValidateZELKName(std::string_view(name));
}

int ValidateZELKName(std::string_view name) {
    name = WithoutTrailingBlanks(name);
    if (name.empty() || name.size() > kLongestZELKName) {
        return kBadNameLength;
    }
    if (!HoldsOnlyNameChars(name)) {
        return kBadNameCharacter;
    }
    const char first = name.front();
    if (IsDigit(first) || first == '_' || first == '.') {
        return kBadNameStart;
    }
    if (IsReservedWord(name)) {
        return kReservedWord;
    }
    if (first == '#') {
        return kScratchName;
    }
    return first == '$' ? kSystemName : kOrdinaryName;
}

int ValidateZELKNameCheckLastChar(const char* name) {
    const int result = ValidateZELKName(name);
    if (result != kOrdinaryName) {
        return result;
    }
    if (EndsWithMark(name, '.')) {
        return kNameEndsInPeriod;
    }
    return EndsWithMark(name, '_') ? kNameEndsInUnderscore : kOrdinaryName;
}

bool IsValidZelkNameChar(const char* character) {
    constexpr std::size_t kLongestCharacter = 4;
    const int charLength = ZELKMBmblen_A(character, strnlen(character, kLongestCharacter));
    return charLength >= 2 || (charLength == 1 && IsSingleByteNameChar(*character));
}

bool FormNumericZELKName(char* destination, const char* source) {
    const std::string_view digits = WithoutTrailingBlanks(source);
    const std::size_t length = digits.size();
    if (length == 0 || length > kLongestNumericName ||
        digits.find_first_not_of(Digits) != std::string_view::npos) {
        return false;
    }
    std::memmove(destination + 1, source, length);
    destination[0] = '@';
    destination[length + 1] = '\0';
    return true;
}

int addNameSuffix(char* destination, const char* base, int index, int maximumLength) {
    const std::string suffix = SuffixLetters(index);
    const int room = maximumLength - static_cast<int>(suffix.size()) - 1;
    std::string name = base;
    std::memmove(destination, base, name.size() + 1);
    if (room < 2) {
        return 1;
    }
    ZELKMBStringTruncate_A(name, static_cast<std::size_t>(room));
    if (name.empty()) {
        return 1;
    }
    name += '_';
    name += suffix;
    std::memcpy(destination, name.c_str(), name.size() + 1);
    return 0;
}

void GenerateZELKName(char* name, long number, NameTakenCallback taken, void* first, void* second) {
    std::string copy = NameCharsOf(name);
    if (std::array<char, kLongestNumericName + 2> numeric{};
        FormNumericZELKName(numeric.data(), copy.c_str())) {
        copy = numeric.data();
    }
    if (MendName(copy) != kOrdinaryName) {
        copy.assign(1, 'V');
        copy += std::to_string(number);
    }
    std::memcpy(name, copy.c_str(), copy.size() + 1);
    if (taken == nullptr) {
        return;
    }
    for (int index = 0; taken(first, second, name) != 0; ++index) {
        addNameSuffix(name, copy.c_str(), index, static_cast<int>(kLongestZELKName));
    }
}

} // namespace recastor
