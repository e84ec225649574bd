/// How the program and its workers talk: packets of bytes over a socket.
#pragma once

#include "archive/tree/convertfile.h"

#include <optional>
#include <string>
#include <string_view>

namespace recastor {

/// A whole packet, ready to be sent.
std::string PacketOf(const FileJob& job);
std::string PacketOf(const FileResult& result);

/// Takes the first packet out of `received`; nothing when it is not yet whole.
std::optional<std::string> TakePacket(std::string& received);

/// What a packet says.
FileJob JobOfPacket(std::string_view packet);
FileResult ResultOfPacket(std::string_view packet);

} // namespace recastor
