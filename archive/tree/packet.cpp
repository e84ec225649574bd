#include "archive/tree/packet.h"

#include <cstring>

namespace recastor {

namespace {

/// Both ends are the same program on the same machine, so numbers travel as they are in memory.
template <typename Value>
void Put(const Value& value, std::string& bytes) {
    static_assert(std::is_trivially_copyable_v<Value>);
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value); // NOLINT: as bytes
}

void Put(const std::string& text, std::string& bytes) {
    Put(static_cast<std::uint64_t>(text.size()), bytes);
    bytes += text;
}

template <typename Value>
Value Take(std::string_view& bytes) {
    static_assert(std::is_trivially_copyable_v<Value>);
    Value value{};
    std::memcpy(&value, bytes.data(), sizeof value);
    bytes.remove_prefix(sizeof value);
    return value;
}

template <>
std::string Take<std::string>(std::string_view& bytes) {
    const auto size = Take<std::uint64_t>(bytes);
    std::string text(bytes.substr(0, size));
    bytes.remove_prefix(size);
    return text;
}

} // namespace

std::string PacketOf(const FileJob& job) {
    std::string content;
    Put(job.path, content);
    Put(job.twin, content);
    Put(job.previousLine, content);
    std::string packet;
    Put(content, packet);
    return packet;
}

std::string PacketOf(const FileResult& result) {
    std::string content;
    Put(result.line, content);
    Put(result.rows.csv, content);
    Put(result.rows.sarif, content);
    Put(result.rows.index, content);
    Put(result.counts, content);
    Put(result.problem, content);
    Put(result.unchanged, content);
    Put(result.wouldChange, content);
    Put(result.notWritable, content);
    std::string packet;
    Put(content, packet);
    return packet;
}

std::optional<std::string> TakePacket(std::string& received) {
    std::string_view rest(received);
    if (rest.size() < sizeof(std::uint64_t)) {
        return std::nullopt;
    }
    const auto size = Take<std::uint64_t>(rest);
    if (rest.size() < size) {
        return std::nullopt;
    }
    std::string packet(rest.substr(0, size));
    received.erase(0, sizeof size + size);
    return packet;
}

FileJob JobOfPacket(std::string_view packet) {
    FileJob job;
    job.path = Take<std::string>(packet);
    job.twin = Take<std::string>(packet);
    job.previousLine = Take<std::string>(packet);
    return job;
}

FileResult ResultOfPacket(std::string_view packet) {
    FileResult result;
    result.line = Take<std::string>(packet);
    result.rows.csv = Take<std::string>(packet);
    result.rows.sarif = Take<std::string>(packet);
    result.rows.index = Take<std::string>(packet);
    result.counts = Take<OutcomeCounts>(packet);
    result.problem = Take<std::string>(packet);
    result.unchanged = Take<bool>(packet);
    result.wouldChange = Take<bool>(packet);
    result.notWritable = Take<bool>(packet);
    return result;
}

} // namespace recastor
