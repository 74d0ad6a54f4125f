// What the network may make the console hold, do or wait for while hosts are looked for.
#pragma once

#include <chrono>
#include <cstddef>

namespace tessarine::browse_limits {

/// Bytes of a name. NetBIOS names have 15, but hosts and domains also tell the names that DNS has
/// for them, which have 255 at the most; the names in between are taken as well.
inline constexpr std::size_t kName = 255;
inline constexpr std::size_t kComment = 256;

/// Bytes of one datagram; WS-Discovery's devices keep to 32,767 (DPWS, MAX_ENVELOPE_SIZE).
inline constexpr std::size_t kDatagram = 32767;
/// Bytes of one metadata answer, and of one text in an answer.
inline constexpr std::size_t kMetadata = std::size_t{1024} * 1024;
inline constexpr std::size_t kElementText = std::size_t{4} * 1024;
/// Bytes of an endpoint's address or of a URL.
inline constexpr std::size_t kAddress = 300;

/// Devices that are asked for their metadata; and of these, those with one IP address, so that one
/// liar can't take the place of all others.
inline constexpr std::size_t kDevices = 2048;
inline constexpr std::size_t kDevicesOfOneAddress = 8;
/// Devices that left out where they are, and are asked for it by a multicast each.
inline constexpr std::size_t kResolves = 256;
/// Metadata requests under way at the same time.
inline constexpr std::size_t kRequests = 24;
/// Datagrams taken before the windows get their turn.
inline constexpr int kDatagramsInARow = 256;

/// Bytes that tessarine-browse may write.
inline constexpr std::size_t kProgramOutput = std::size_t{1024} * 1024;

/// Devices take up to half a second for an answer (WS-Discovery, APP_MAX_DELAY), and the probe is
/// sent a second time (MULTICAST_UDP_REPEAT).
inline constexpr std::chrono::milliseconds kSecondProbe{250};
inline constexpr std::chrono::milliseconds kListening{1500};
/// One metadata request, and its connection.
inline constexpr std::chrono::milliseconds kRequest{2500};
inline constexpr std::chrono::milliseconds kConnect{1500};
/// All of it. libsmbclient alone would wait ten seconds for a master that is gone.
inline constexpr std::chrono::milliseconds kWhole{5000};
/// How long what the devices told is good for the groups that are ticked after that.
inline constexpr std::chrono::seconds kFresh{30};

}  // namespace tessarine::browse_limits
