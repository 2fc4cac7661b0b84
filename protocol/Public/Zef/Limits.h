// SPDX-License-Identifier: MIT
/** What one end of the link is ready to take: every number that a received message is held against. */
#pragma once

#include <cstddef>
#include <cstdint>

namespace Zef
{

/**
 * Budget of one connection. A message beyond it is refused before memory is taken for it.
 * The defaults admit any scene that an editor can hold; a test or a small machine lowers them.
 */
struct FLimits
{
	/**
	 * Bytes of all arrays of one item together, and of what they become in an editor; of all frames together for a mesh
	 * sequence.
	 */
	std::uint64_t MaxItemBytes = std::uint64_t(8) << 30;
	/** Bytes of an item's header: names, joints, materials and counts. */
	std::uint32_t MaxHeaderBytes = 32u << 20;
	/** Bytes that the names, joints, materials and counts of a header may become in memory: a table may be shared. */
	std::uint64_t MaxStructureBytes = std::uint64_t(256) << 20;
	/** Bytes of one piece on arrival; a longer message part closes the connection. */
	std::uint32_t MaxPieceBytes = 4u << 20;
	/** Bytes of pieces that the other end may have under way before it hears that they were taken. */
	std::uint64_t WindowBytes = 16u << 20;
	/** Bytes of UTF-8 in the name of a surface, joint or material. Leaves room for what the editor puts around it. */
	std::uint32_t MaxNameBytes = 512;
	/** Bytes of UTF-8 in an asset path, and in a sentence of the other end. */
	std::uint32_t MaxPathBytes = 4096;
	/** Bone indices are 16 bits wide in the editor. */
	std::uint32_t MaxJoints = 65535;
	/** Entries of one list: surfaces, sections of a surface, layouts of poses. */
	std::uint32_t MaxEntries = 1u << 20;
	/** Entries of one map: materials, textures, channels, scalars, vectors. Material slots are 16 bits wide in the
	 * editor. */
	std::uint32_t MaxMapEntries = 65535;
	/** Frames of one animation. */
	std::uint32_t MaxFrames = 1u << 24;
	/** Pixels along one side of a texture. */
	std::uint32_t MaxTextureSide = 65536;
	/** Editors that a garment application serves at once. */
	std::uint32_t MaxClients = 16;
	/** Connections of a garment application that may stand at once, greeted or not; further ones are cut. */
	std::uint32_t MaxConnections = 64;
	/** Requests of one editor in a second, for long; four times as many may come at once. */
	std::uint32_t MaxRequestsPerSecond = 1000;
	/** Messages in a second that this end has to refuse, for long; four times as many may come at once. */
	std::uint32_t MaxFaultsPerSecond = 64;
};

/** The editor counts the elements of an array in 32 signed bits. */
inline constexpr std::uint64_t MaxArrayElements = 0x7fffffff;

/** Bytes of a piece as this library cuts them; about the rate's optimum on a local socket. */
inline constexpr std::uint32_t DefaultPieceBytes = 1u << 20;

/** Versions of the protocol that this library speaks. */
inline constexpr std::uint16_t MinProtocolVersion = 1;
inline constexpr std::uint16_t MaxProtocolVersion = 2;

/** The first version with UpdateAnnouncement, and with Refused that says why an application ends. */
inline constexpr std::uint16_t AnnouncingVersion = 2;

/** Versions that one end offers in the greeting. */
struct FVersionRange
{
	std::uint16_t Min = MinProtocolVersion;
	std::uint16_t Max = MaxProtocolVersion;
};

} // namespace Zef
