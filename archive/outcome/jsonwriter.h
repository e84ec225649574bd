/// Writes JSON as it goes along: reports have so much of it that none is held in a tree.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace recastor {

/// Commas come by themselves; the rest of the order is the caller's. The text is valid UTF-8
/// whatever the strings are: what is none becomes U+FFFD. It holds no `<`, so that it may stand in
/// a script element.
class JsonWriter {
public:
    void BeginObject() { Open('{'); }
    void EndObject() { Close('}'); }
    void BeginArray() { Open('['); }
    void EndArray() { Close(']'); }
    /// The name of the member whose value is written next.
    void Key(std::string_view name);

    void String(std::string_view text);
    void Number(double value); ///< null when it is not finite
    void Integer(std::int64_t value);
    void Bool(bool value);
    void Null();
    /// A value that is JSON of this class already.
    void Json(std::string_view json);

    // Members of an object.

    void Member(std::string_view name, std::string_view text);
    void Member(std::string_view name, const char* text);
    void Member(std::string_view name, bool value);
    void Member(std::string_view name, std::int64_t value);
    void Member(std::string_view name, std::uint64_t value);
    void Member(std::string_view name, const std::vector<std::string>& texts);

    const std::string& Text() const { return m_text; }

private:
    void Open(char bracket);
    void Close(char bracket);
    void Separate();
    void Quote(std::string_view text);
    void QuoteAscii(char c);

    std::string m_text;
    bool m_needsComma = false;
};

} // namespace recastor
