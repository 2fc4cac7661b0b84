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
	{EFault::BadPrefix, "BadPrefix", Error, "The first part of a message is not a prefix of this protocol."},
	{EFault::PartCount, "PartCount", Error, "A message has more or fewer parts than its kind has."},
	{EFault::UnknownFrame, "UnknownFrame", Error, "A message is of no kind that this end takes."},
	{EFault::PieceTooLarge, "PieceTooLarge", Error,
		"A piece is longer than the greeting allowed; send shorter pieces."},
	{EFault::PieceUnexpected, "PieceUnexpected", Error, "A piece arrived that belongs to no open item."},
	{EFault::PieceOffset, "PieceOffset", Error,
		"A piece does not follow the one before it; pieces go in order, without gap."},
	{EFault::PieceOverrun, "PieceOverrun", Error, "The pieces of an item are longer than its header says."},
	{EFault::Truncated, "Truncated", Error, "An item ended before all its bytes had come."},
	{EFault::Stalled, "Stalled", Error, "Nothing arrived for a long time in the middle of an item."},
	{EFault::HeaderTooLarge, "HeaderTooLarge", Error, "The header of an item is longer than this end takes."},
	{EFault::WindowOverrun, "WindowOverrun", Fatal,
		"More bytes are under way than the greeting allowed; wait for credit."},
	{EFault::VersionUnknown, "VersionUnknown", Fatal,
		"The two ends share no version of the protocol; update the older one."},
	{EFault::NotGreeted, "NotGreeted", Fatal, "A message came before the greeting; a connection begins with Hello."},
	{EFault::BadHello, "BadHello", Fatal, "A greeting cannot be read, or came twice."},
	{EFault::TooManyClients, "TooManyClients", Fatal, "As many editors are connected as this end serves."},
	{EFault::BadTable, "BadTable", Error, "The header of an item is not a valid FlatBuffers table of the schema."},
	{EFault::UnknownItem, "UnknownItem", Error, "The item is of a kind that this end does not take."},
	{EFault::MissingField, "MissingField", Error, "A table that the item needs is absent."},
	{EFault::OverBudget, "OverBudget", Error, "The item is larger than this end is ready to take."},
	{EFault::OutOfMemory, "OutOfMemory", Error, "There was no memory for the item."},
	{EFault::PayloadSize, "PayloadSize", Error, "The length of the arrays does not agree with their counts."},
	{EFault::TooManyElements, "TooManyElements", Error, "An array or list is longer than an editor can hold."},
	{EFault::BadText, "BadText", Error, "A text is not UTF-8, or holds a NUL."},
	{EFault::NameTooLong, "NameTooLong", Error, "A name or path is longer than this end takes."},
	{EFault::ObjectType, "ObjectType", Error, "An object type is none of garment, avatar, outfit and prop."},
	{EFault::AnimationKind, "AnimationKind", Error, "An animation kind is not one that the item may have."},
	{EFault::CountMismatch, "CountMismatch", Error, "Two arrays that belong together differ in length."},
	{EFault::VertexOffset, "VertexOffset", Error,
		"A surface's vertex offset does not agree with the surfaces before it."},
	{EFault::IndexRange, "IndexRange", Error, "An index names a vertex that its surface does not have."},
	{EFault::UVsMissing, "UVsMissing", Error, "A mesh with joints has a surface without texture coordinates."},
	{EFault::EmptySurface, "EmptySurface", Error, "A mesh with joints has a surface without vertices."},
	{EFault::ParentOrder, "ParentOrder", Error, "A joint's parent is not an earlier joint."},
	{EFault::SecondRoot, "SecondRoot", Error, "A joint other than the first has no parent."},
	{EFault::JointName, "JointName", Error, "A joint's name is empty, or another joint has it."},
	{EFault::InfluenceCount, "InfluenceCount", Error, "The bone weights do not cover the vertices."},
	{EFault::InfluenceOffsets, "InfluenceOffsets", Error,
		"The offsets of the bone weights do not ascend from 0 to their count."},
	{EFault::BoneIndexRange, "BoneIndexRange", Error, "A bone weight names a joint that the mesh does not have."},
	{EFault::WeightRange, "WeightRange", Error, "A bone weight is not between 0 and 1."},
	{EFault::NotFinite, "NotFinite", Error, "A number is infinite or not a number."},
	{EFault::KeyTwice, "KeyTwice", Error, "A key stands twice in a map."},
	{EFault::TextureFormat, "TextureFormat", Error, "A texture's format is none of 0, 1 and -1."},
	{EFault::TextureSize, "TextureSize", Error, "A texture's width or height is negative or too large."},
	{EFault::PixelCount, "PixelCount", Error, "A texture's pixels do not agree with its format, width and height."},
	{EFault::TimeOrder, "TimeOrder", Error, "A frame's time is less than the one before it."},
	{EFault::JointTable, "JointTable", Error,
		"A frame names a pose layout that the sequence does not have, or a layout a joint "
		"that the mesh does not have."},
	{EFault::ScalarMissing, "ScalarMissing", Error,
		"A roughness, metallic, specular or opacity channel lacks a scalar that every such channel has."},
	{EFault::SequenceUnexpected, "SequenceUnexpected", Error,
		"A frame or an end came while no mesh sequence was open, or a "
		"beginning while one was."},
	{EFault::SequenceFrame, "SequenceFrame", Error, "A frame of a mesh sequence came out of order."},
	{EFault::SequenceLength, "SequenceLength", Error, "A mesh sequence has more or fewer frames than its end says."},
	{EFault::PeerLost, "PeerLost", Warning, "The connection is gone."},
	{EFault::AddressRefused, "AddressRefused", Fatal, "The address is not one that may be used."},
	{EFault::AddressTaken, "AddressTaken", Fatal, "Another application serves this channel."},
	{EFault::PeerFailed, "PeerFailed", Error, "The other end could not do what it was asked."},
};

constexpr FFaultInfo NoFault{EFault::None, "None", Warning, "No fault."};
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
