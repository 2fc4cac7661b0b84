// SPDX-License-Identifier: MIT
#include "Zef/Fault.h"

#include <algorithm>
#include <array>

namespace Zef
{

namespace
{
using enum EFaultSeverity;

constexpr FFaultInfo Table[] = {
	{EFault::BadPrefix, "BadPrefix", Error, "The first part of a message is not a prefix of this protocol.",
		"Begin each message with the 24 bytes of the prefix; give credit only for bytes that came."},
	{EFault::PartCount, "PartCount", Error, "A message has more or fewer parts than its kind has.",
		"Send a prefix and one more part; a prefix alone for Credit."},
	{EFault::UnknownFrame, "UnknownFrame", Error, "A message is of no kind that this end takes.",
		"Send messages of the kinds 1 to 6; greet once."},
	{EFault::PieceTooLarge, "PieceTooLarge", Error, "A piece is longer than the greeting allowed.",
		"Cut arrays into pieces of at most the max_piece_bytes of the greeting."},
	{EFault::PieceUnexpected, "PieceUnexpected", Error, "A piece arrived that belongs to no open item.",
		"Send an item's header before its pieces, and no piece after its last byte."},
	{EFault::PieceOffset, "PieceOffset", Error, "A piece does not follow the one before it.",
		"Send pieces in order, each at the byte at which the one before it ended."},
	{EFault::PieceOverrun, "PieceOverrun", Error, "The pieces of an item are longer than its header says.",
		"Make payload_bytes the sum of all arrays, and send no more."},
	{EFault::Truncated, "Truncated", Error, "An item ended before all its bytes had come.",
		"Send all bytes of an item before the header of the next."},
	{EFault::Stalled, "Stalled", Error, "Nothing arrived for a long time in the middle of an item.",
		"Prepare arrays before the header is sent, or send the item again."},
	{EFault::HeaderTooLarge, "HeaderTooLarge", Error, "The header of an item is longer than this end takes.",
		"Split the object, or use fewer surfaces, joints and materials."},
	{EFault::WindowOverrun, "WindowOverrun", Fatal, "More bytes are under way than the greeting allowed.",
		"Wait for Credit when the window of the greeting is full."},
	{EFault::RateExceeded, "RateExceeded", Fatal,
		"Requests or messages that are refused come faster than this end takes them.",
		"Ask less often, and look at the faults that were reported before."},
	{EFault::VersionUnknown, "VersionUnknown", Fatal, "The two ends share no version of the protocol.",
		"Update the older of the two programs."},
	{EFault::NotGreeted, "NotGreeted", Fatal, "A message came before the greeting.",
		"Begin each connection with Hello."},
	{EFault::BadHello, "BadHello", Fatal, "A greeting cannot be read, or came twice.",
		"Send one Hello with a version range, a window and a piece length above 0."},
	{EFault::TooManyClients, "TooManyClients", Fatal, "As many editors are connected as this end serves.",
		"Close an editor, or raise the limit of the application."},
	{EFault::Closing, "Closing", Warning, "The other end is being closed by its user.",
		"Start it again when it is needed; connect to it then."},
	{EFault::BadTable, "BadTable", Error, "The header of an item is not a valid FlatBuffers table of the schema.",
		"Write the header with the schema protocol/tandem.fbs, size-prefixed, and cut nothing off."},
	{EFault::UnknownItem, "UnknownItem", Error, "The item is of a kind that this end does not take.",
		"Send requests to applications and replies to editors, of kinds that the version of the connection has."},
	{EFault::MissingField, "MissingField", Error, "A table that the item needs is absent.",
		"Write the table that the path names."},
	{EFault::OverBudget, "OverBudget", Error, "The item is larger than this end is ready to take.",
		"Send a smaller object, fewer frames, or textures of a lower resolution."},
	{EFault::OutOfMemory, "OutOfMemory", Error, "There was no memory for the item.",
		"Close other programs, or send a smaller object."},
	{EFault::PayloadSize, "PayloadSize", Error, "The length of the arrays does not agree with their counts.",
		"Make payload_bytes the sum of the counts times the bytes of an element."},
	{EFault::TooManyElements, "TooManyElements", Error, "An array or list is longer than an editor can hold.",
		"Split the object."},
	{EFault::BadText, "BadText", Error, "A text is not UTF-8, or holds a NUL.", "Write texts as UTF-8 without NUL."},
	{EFault::NameTooLong, "NameTooLong", Error, "A name or path is longer than this end takes.", "Use a shorter name."},
	{EFault::ObjectType, "ObjectType", Error, "An object type is none of garment, avatar, outfit and prop.",
		"Name one of 2 garment, 4 avatar, 8 outfit, 16 prop."},
	{EFault::AnimationKind, "AnimationKind", Error, "An animation kind is not one that the item may have.",
		"Ask for 0 a mesh sequence, or 1 a joint animation."},
	{EFault::CountMismatch, "CountMismatch", Error, "Two arrays that belong together differ in length.",
		"Give the two arrays the same length."},
	{EFault::VertexOffset, "VertexOffset", Error,
		"A surface's vertex offset does not agree with the surfaces before it.",
		"Set it to the number of vertices of the surfaces before; in message 4 to at least that."},
	{EFault::IndexRange, "IndexRange", Error, "An index names a vertex that its surface does not have.",
		"Count indices in the surface: from 0 to below its number of vertices; in message 4 add its vertex_offset."},
	{EFault::UVsMissing, "UVsMissing", Error, "A mesh with joints has a surface without texture coordinates.",
		"Send texture coordinates for each vertex."},
	{EFault::EmptySurface, "EmptySurface", Error, "A mesh with joints has a surface without vertices.",
		"Leave out surfaces without vertices."},
	{EFault::ParentOrder, "ParentOrder", Error, "A joint's parent is not an earlier joint.",
		"Sort joints so that parents come before children."},
	{EFault::SecondRoot, "SecondRoot", Error, "A joint other than the first has no parent.",
		"Give all joints but the first a parent."},
	{EFault::JointName, "JointName", Error, "A joint's name is empty, or another joint has it.",
		"Give each joint a name of its own, other than \"None\"."},
	{EFault::InfluenceCount, "InfluenceCount", Error, "The bone weights do not cover the vertices.",
		"Send first_weight for all vertices of all surfaces and one more, or none at all."},
	{EFault::InfluenceOffsets, "InfluenceOffsets", Error,
		"The offsets of the bone weights do not ascend from 0 to their count.",
		"Begin first_weight with 0, let it ascend, and end with the count of weights."},
	{EFault::BoneIndexRange, "BoneIndexRange", Error, "A bone weight names a joint that the mesh does not have.",
		"Count joints from 0 to below the mesh's number of joints."},
	{EFault::WeightRange, "WeightRange", Error, "A bone weight is not between 0 and 1.", "Send weights from 0 to 1."},
	{EFault::NotFinite, "NotFinite", Error, "A number is infinite or not a number.",
		"Look for divisions by zero where the number comes from."},
	{EFault::KeyTwice, "KeyTwice", Error, "A key stands twice in a map.",
		"Give each entry of the map a key of its own."},
	{EFault::TextureFormat, "TextureFormat", Error, "A texture's format is none of 0, 1 and -1.",
		"Send 8-bit (0) or 16-bit (1) pixels of four channels, or -1 for no image."},
	{EFault::TextureSize, "TextureSize", Error, "A texture's width or height is negative or too large.",
		"Scale the texture down."},
	{EFault::PixelCount, "PixelCount", Error, "A texture's pixels do not agree with its format, width and height.",
		"Send width times height times 4 or 8 bytes; none without an image."},
	{EFault::TimeOrder, "TimeOrder", Error, "A frame's time is less than the one before it.", "Sort frames by time."},
	{EFault::JointTable, "JointTable", Error,
		"A frame names a pose layout that the sequence does not have, or a layout a joint "
		"that the mesh does not have.",
		"Count layouts in the sequence's tables, and parents in the mesh's joints."},
	{EFault::ScalarMissing, "ScalarMissing", Error,
		"A roughness, metallic, specular or opacity channel lacks a scalar that every such channel has.",
		"Send the scalar keys 1, and with a map 0, in each of these channels."},
	{EFault::SequenceUnexpected, "SequenceUnexpected", Error,
		"A frame or an end came while no mesh sequence was open, or a "
		"beginning while one was.",
		"Send one sequence at a time: begin, frames, end."},
	{EFault::SequenceFrame, "SequenceFrame", Error, "A frame of a mesh sequence came out of order.",
		"Number the frames from 0 without gap."},
	{EFault::SequenceLength, "SequenceLength", Error, "A mesh sequence has more or fewer frames than its end says.",
		"Write the number of frames that were sent into the end."},
	{EFault::PeerLost, "PeerLost", Warning, "The connection is gone.", "Ask again when the link is up."},
	{EFault::AddressRefused, "AddressRefused", Fatal, "The address is not one that may be used.",
		"Use a local address of your own."},
	{EFault::AddressTaken, "AddressTaken", Fatal, "Another application serves this channel.",
		"Close the other application, or use another channel."},
	{EFault::KeysRefused, "KeysRefused", Fatal, "The keys of an address are missing, unsafe or not accepted.",
		"Make a pair with \"zef-peer keys NAME\", keep one file at each end with mode 0600, and name it with --keys."},
	{EFault::UserRefused, "UserRefused", Fatal, "The other end of the connection belongs to another user.",
		"Run both programs as the same user, or use a tcp address with keys."},
	{EFault::BadRecording, "BadRecording", Error, "A file is no recording that can be served.",
		"Copy the file again as binary, or record again."},
	{EFault::RecordingStopped, "RecordingStopped", Error, "A recording could not be written to its end.",
		"Make room on the disk, or record to another folder."},
	{EFault::PeerFailed, "PeerFailed", Error, "The other end could not do what it was asked.",
		"Read what the other end says about it."},
};

constexpr FFaultInfo NoFault{EFault::None, "None", Warning, "No fault.", ""};
} // namespace

std::span<const FFaultInfo> FaultTable()
{
	return Table;
}

const FFaultInfo& FaultInfo(EFault Code)
{
	const auto* Found = std::ranges::lower_bound(Table, Code, {}, &FFaultInfo::Code);
	return Found != std::end(Table) && Found->Code == Code ? *Found : NoFault;
}

FLinkFault MakeFault(EFault Code, std::string Path, std::string Message)
{
	return {Code, FaultInfo(Code).Severity, std::move(Path), std::move(Message)};
}

std::string ToString(const FLinkFault& Fault)
{
	std::string Text = FaultInfo(Fault.Code).Name;
	Text += " (" + std::to_string(static_cast<unsigned>(Fault.Code)) + ")";
	if (!Fault.Path.empty())
	{
		Text += " at " + Fault.Path;
	}
	return Text + ": " + (Fault.Message.empty() ? FaultInfo(Fault.Code).Text : Fault.Message);
}

} // namespace Zef
