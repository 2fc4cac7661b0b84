// SPDX-License-Identifier: MIT
/** The declared faults of the link: stable code, severity, and the report that names place, expected and actual. */
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace Zef
{

enum class EFaultSeverity : std::uint8_t
{
	/** The message stands; the report tells something about it. */
	Warning = 0,
	/** The message is dropped whole; the connection stays. */
	Error = 1,
	/** The message is dropped and the connection ends. */
	Fatal = 2
};

/** Codes are part of the protocol: a number is never given to another fault. See docs/link-errors.md. */
enum class EFault : std::uint16_t
{
	None = 0,

	// Framing
	BadPrefix = 101,
	PartCount = 102,
	UnknownFrame = 103,
	PieceTooLarge = 104,
	PieceUnexpected = 105,
	PieceOffset = 106,
	PieceOverrun = 107,
	Truncated = 108,
	Stalled = 109,
	HeaderTooLarge = 110,
	WindowOverrun = 111,
	RateExceeded = 112,

	// Hello
	VersionUnknown = 201,
	NotGreeted = 202,
	BadHello = 203,
	TooManyClients = 204,
	Closing = 205,

	// Structure
	BadTable = 301,
	UnknownItem = 302,
	MissingField = 303,
	OverBudget = 304,
	OutOfMemory = 305,
	PayloadSize = 306,
	TooManyElements = 307,
	BadText = 308,
	NameTooLong = 309,

	// Meaning
	ObjectType = 401,
	AnimationKind = 402,
	CountMismatch = 403,
	VertexOffset = 404,
	IndexRange = 405,
	UVsMissing = 406,
	EmptySurface = 407,
	ParentOrder = 408,
	SecondRoot = 409,
	JointName = 410,
	InfluenceCount = 411,
	InfluenceOffsets = 412,
	BoneIndexRange = 413,
	WeightRange = 414,
	NotFinite = 415,
	KeyTwice = 416,
	TextureFormat = 417,
	TextureSize = 418,
	PixelCount = 419,
	TimeOrder = 420,
	JointTable = 421,
	ScalarMissing = 422,

	// Mesh sequence
	SequenceUnexpected = 501,
	SequenceFrame = 502,
	SequenceLength = 503,

	// Endpoint, told to the own program only
	PeerLost = 601,
	AddressRefused = 602,
	AddressTaken = 603,
	KeysRefused = 604,
	UserRefused = 605,
	BadRecording = 606,
	RecordingStopped = 607,

	/** What a peer reports about itself: it could not do what was asked. */
	PeerFailed = 701
};

/** One row of the table of faults. */
struct FFaultInfo
{
	EFault Code;
	const char* Name;
	EFaultSeverity Severity;
	/** What it means, one sentence. */
	const char* Text;
	/** What whoever sent it can do, one sentence. */
	const char* Remedy = "";
};

/** All faults in ascending order of their code. */
std::span<const FFaultInfo> FaultTable();

/** The row of a code; the row of None for a number that is not in the table. */
const FFaultInfo& FaultInfo(EFault Code);

/** One report. Path names the place in the message, as in "/Surfaces/0/Sections/2/Indices/17"; empty for the whole. */
struct FLinkFault
{
	EFault Code = EFault::None;
	EFaultSeverity Severity = EFaultSeverity::Error;
	std::string Path;
	/** What was expected and what stood there, in one sentence. */
	std::string Message;

	/** True when this reports something. */
	explicit operator bool() const { return Code != EFault::None; }
};

/** Report of a code with the severity of its row. */
FLinkFault MakeFault(EFault Code, std::string Path, std::string Message);

/** One line for a log: "IndexRange (405) at /Surfaces/0/...: ...". */
std::string ToString(const FLinkFault& Fault);

} // namespace Zef
