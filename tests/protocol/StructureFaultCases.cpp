// SPDX-License-Identifier: MIT
#include "FaultCases.h"
#include "ItemDecoding.h"
#include "SampleRecords.h"
#include "Zef/Check.h"

#include <flatbuffers/flatbuffers.h>

#include <cstring>

namespace LinkTest
{

namespace
{
using Zef::EDecode;
using Zef::EFault;
using Zef::EObjectType;
using Zef::EReceiver;

/** The editor's report on a header with arrays. */
Zef::FLinkFault Report(const Zef::FBytes& Header, const Zef::FBytes& Payload, const Zef::FLimits& Limits = {})
{
	FDecoding Editor(EReceiver::Editor, Limits);
	Editor.Feed(Header, Payload);
	return Editor.Decoder.Fault();
}

/** The editor's report on SampleMesh after a change to it. */
std::function<Zef::FLinkFault()> Mesh(std::function<void(Zef::FSurfaceMesh&)> Change, const Zef::FLimits& Limits = {})
{
	return [Change = std::move(Change), Limits]
	{
		const auto Changed = SampleMesh();
		Change(*Changed);
		const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, Changed);
		return Report(Item.Header, PayloadOf(Item), Limits);
	};
}

Zef::FLimits With(const std::function<void(Zef::FLimits&)>& Change)
{
	Zef::FLimits Limits;
	Change(Limits);
	return Limits;
}

/** A header written by hand: a body of that type whose table has one 32-bit field, the object type, and nothing else.
 */
Zef::FBytes BareHeader(std::uint8_t BodyType)
{
	flatbuffers::FlatBufferBuilder Builder;
	const auto BodyStart = Builder.StartTable();
	Builder.AddElement<std::int32_t>(4, 2, 0);
	const flatbuffers::Offset<void> Body(Builder.EndTable(BodyStart));
	const auto ItemStart = Builder.StartTable();
	Builder.AddElement<std::uint8_t>(4, BodyType, 0);
	Builder.AddOffset(6, Body);
	Builder.FinishSizePrefixed(flatbuffers::Offset<flatbuffers::Table>(Builder.EndTable(ItemStart)));
	const auto View = Builder.GetBufferSpan();
	return {View.begin(), View.end()};
}

/** A short header whose materials are all one table, with one long name. */
Zef::FBytes SharedMaterialHeader(std::size_t Materials, std::size_t NameBytes)
{
	flatbuffers::FlatBufferBuilder Builder;
	const auto Name = Builder.CreateString(std::string(NameBytes, 'n'));
	const auto MaterialStart = Builder.StartTable();
	Builder.AddOffset(8, Name);
	const flatbuffers::Offset<flatbuffers::Table> Material(Builder.EndTable(MaterialStart));
	const auto List = Builder.CreateVector(std::vector<flatbuffers::Offset<flatbuffers::Table>>(Materials, Material));
	const auto MeshStart = Builder.StartTable();
	Builder.AddOffset(12, List);
	const flatbuffers::Offset<void> Mesh(Builder.EndTable(MeshStart));
	const auto BodyStart = Builder.StartTable();
	Builder.AddElement<std::int32_t>(4, 2, 0);
	Builder.AddOffset(6, Mesh);
	const flatbuffers::Offset<void> Body(Builder.EndTable(BodyStart));
	const auto ItemStart = Builder.StartTable();
	Builder.AddElement<std::uint8_t>(4, 6, 0);
	Builder.AddOffset(6, Body);
	Builder.FinishSizePrefixed(flatbuffers::Offset<flatbuffers::Table>(Builder.EndTable(ItemStart)));
	const auto View = Builder.GetBufferSpan();
	return {View.begin(), View.end()};
}

/** The header with the first occurrence of one 64-bit number replaced by another. */
Zef::FBytes Replaced(Zef::FBytes Header, std::uint64_t From, std::uint64_t To)
{
	for (std::size_t Place = 0; Place + sizeof(From) <= Header.size(); Place += 4)
	{
		if (std::memcmp(&Header[Place], &From, sizeof(From)) == 0)
		{
			std::memcpy(&Header[Place], &To, sizeof(To));
			break;
		}
	}
	return Header;
}

/** Records that have no memory. */
class FNoMemory : public Zef::IRecordFactory
{
public:
	std::unique_ptr<Zef::IRecordSink> MakeSink(Zef::EItem, EObjectType) override
	{
		class FSink : public Zef::IRecordSink
		{
			void Mesh(Zef::FMeshHeader&&) override {}
			void* Allocate(const Zef::FArraySlot& Slot) override
			{
				if (Slot.Array == Zef::EArray::Pixels)
				{
					throw std::bad_alloc();
				}
				return Slot.Array == Zef::EArray::Normals ? nullptr : Storage;
			}
			void JointSequence(Zef::FPackedJointSequence&&) override {}
			void Frame(std::uint32_t, double) override {}
			void Finish() override {}
			alignas(8) std::uint8_t Storage[4096];
		};
		return std::make_unique<FSink>();
	}
};
} // namespace

std::vector<FFaultCase> StructureFaultCases()
{
	using FMesh = Zef::FSurfaceMesh;
	const auto Nothing = [](FMesh&) {};
	return {
		{"OfNoItem", EFault::PieceUnexpected, "",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Decoder.Piece(1, 0, Zef::FBytes(4));
				return Editor.Decoder.Fault();
			}},
		{"OfAnotherItem", EFault::PieceUnexpected, "",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Decoder.Header(1, Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).Header);
				Editor.Decoder.Piece(2, 0, Zef::FBytes(4));
				return Editor.Decoder.Fault();
			}},
		{"LongerThanTheLimit", EFault::PieceTooLarge, "",
			Mesh(Nothing, With([](Zef::FLimits& Limits) { Limits.MaxPieceBytes = 100; }))},
		{"Gap", EFault::PieceOffset, "",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Decoder.Header(1, Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).Header);
				Editor.Decoder.Piece(1, 4, Zef::FBytes(4));
				return Editor.Decoder.Fault();
			}},
		{"OneByteTooMany", EFault::PieceOverrun, "",
			[]
			{
				const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
				Zef::FBytes Payload = PayloadOf(Item);
				Payload.push_back(0);
				return Report(Item.Header, Payload);
			}},
		{"CutOffByTheNext", EFault::Truncated, "",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).Header, {});
				Editor.Feed(Zef::EncodeAvailability({}));
				std::uint64_t Item = 0;
				return Editor.Decoder.TakeTruncation(Item);
			}},
		{"LongerThanTheLimit", EFault::HeaderTooLarge, "",
			Mesh(Nothing, With([](Zef::FLimits& Limits) { Limits.MaxHeaderBytes = 100; }))},
		{"Noise", EFault::BadTable, "", [] { return Report(Zef::FBytes(64, 0xff), {}); }},
		{"Nothing", EFault::BadTable, "", [] { return Report({}, {}); }},
		{"ARequest", EFault::UnknownItem, "", [] { return Report(Zef::EncodeEnable(true).Header, {}); }},
		{"AReply", EFault::UnknownItem, "",
			[]
			{
				FDecoding Application(EReceiver::GarmentApplication);
				Application.Feed(Zef::EncodeAvailability({}));
				return Application.Decoder.Fault();
			}},
		{"OfALaterVersion", EFault::UnknownItem, "", [] { return Report(BareHeader(200), {}); }},
		{"NoMesh", EFault::MissingField, "/Mesh", [] { return Report(BareHeader(6), {}); }},
		{"NoSequence", EFault::MissingField, "/Mesh", [] { return Report(BareHeader(7), {}); }},
		{"Arrays", EFault::OverBudget, "",
			Mesh(Nothing, With([](Zef::FLimits& Limits) { Limits.MaxItemBytes = 400; }))},
		{"OneNameForManyMaterials", EFault::OverBudget, "/Materials/254/Name",
			[] { return Report(SharedMaterialHeader(10000, 1 << 20), {}); }},
		{"ManyEntriesOfOneTable", EFault::OverBudget, "/Materials",
			[] { return Report(SharedMaterialHeader(4 << 20, 1), {}); }},
		{"BoneMapsOfSections", EFault::OverBudget, "",
			Mesh([](FMesh& M) { M.Surfaces[0].Sections.resize(1000); },
				With([](Zef::FLimits& Limits) { Limits.MaxItemBytes = 8000; }))},
		{"InfluencesOfVertices", EFault::OverBudget, "",
			Mesh(Nothing, With([](Zef::FLimits& Limits) { Limits.MaxItemBytes = 536; }))},
		{"PosesOfAnAnimation", EFault::OverBudget, "/Sequence/Frames/2",
			[]
			{
				const auto Long = SampleAnimation();
				for (Zef::FJointSequenceFrame& Frame : Long->Sequence.Frames)
				{
					Frame.Joints[0].Name = std::string(500, 'n');
				}
				FDecoding Editor(EReceiver::Editor, With([](Zef::FLimits& Limits) { Limits.MaxItemBytes = 1500; }));
				Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, Long));
				return Editor.Decoder.Fault();
			}},
		{"Frames", EFault::OverBudget, "/Frames/1",
			[]
			{
				FDecoding Editor(EReceiver::Editor, With([](Zef::FLimits& Limits) { Limits.MaxItemBytes = 800; }));
				Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
				Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(0, 0)));
				Editor.Feed(Zef::EncodeSequenceFrame(1, SampleFrame(0, 1)));
				return Editor.Decoder.Fault();
			}},
		{"RefusedByTheRecord", EFault::OutOfMemory, "/Surfaces/0/Normals",
			[]
			{
				FNoMemory Factory;
				Zef::FItemDecoder Decoder(Factory, EReceiver::Editor, {});
				const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
				Decoder.Header(1, Item.Header);
				Decoder.Piece(1, 0, PayloadOf(Item));
				return Decoder.Fault();
			}},
		{"Thrown", EFault::OutOfMemory, "",
			[]
			{
				FNoMemory Factory;
				Zef::FItemDecoder Decoder(Factory, EReceiver::Editor, {});
				auto Picture = std::make_shared<FMesh>();
				Picture->Textures = {{1, {0, 1, 1, {1, 2, 3, 4}}}};
				const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, Picture);
				Decoder.Header(1, Item.Header);
				Decoder.Piece(1, 0, PayloadOf(Item));
				return Decoder.Fault();
			}},
		{"Differs", EFault::PayloadSize, "/payload_bytes",
			[]
			{
				const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh());
				return Report(Replaced(Item.Header, Item.PayloadBytes, Item.PayloadBytes - 1), PayloadOf(Item));
			}},
		{"OfAFrame", EFault::PayloadSize, "/payload_bytes",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
				const Zef::FEncodedItem Frame = Zef::EncodeSequenceFrame(0, SampleFrame(0, 0));
				Editor.Feed(Replaced(Frame.Header, Frame.PayloadBytes, 1), {});
				return Editor.Decoder.Fault();
			}},
		{"Positions", EFault::TooManyElements, "/Surfaces/0/Positions",
			[]
			{
				auto Cloth = std::make_shared<FMesh>();
				Cloth->Surfaces.resize(1);
				Cloth->Surfaces[0].Positions.resize(11);
				const Zef::FEncodedItem Item = Zef::EncodeSurfaceMesh(EObjectType::Avatar, Cloth);
				return Report(Replaced(Item.Header, 11, 0x80000000), {});
			}},
		{"Joints", EFault::TooManyElements, "/Joints",
			Mesh(Nothing, With([](Zef::FLimits& Limits) { Limits.MaxJoints = 2; }))},
		{"Materials", EFault::TooManyElements, "/Materials", Mesh([](FMesh& M) { M.Materials.resize(65536); })},
		{"ScalarsOfAChannel", EFault::TooManyElements, "/Materials/1/Expressions/0/Scalars",
			Mesh([](FMesh& M) { M.Materials[1].second.Expressions[0].second.Scalars.resize(65536); })},
		{"IndicesOfAllSections", EFault::TooManyElements, "/Surfaces/1/Sections",
			[]
			{
				const Zef::FSurfaceMesh Cloth = *SampleMesh();
				Zef::FMeshCounts Counts = Zef::CountsOf(Cloth);
				Counts.Surfaces[0].SectionIndices[0] = 0x7fffffff;
				return Zef::CheckStructure(Cloth, Counts, Zef::EIndexBase::Surface);
			}},
		{"LayoutsOfPoses", EFault::TooManyElements, "/Sequence/Tables",
			[]
			{
				FDecoding Editor(EReceiver::Editor, With([](Zef::FLimits& Limits) { Limits.MaxEntries = 2; }));
				const auto Changing = SampleAnimation();
				Changing->Sequence.Frames.push_back(Changing->Sequence.Frames[0]);
				Changing->Sequence.Frames.back().Time = 2;
				Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, Changing));
				return Editor.Decoder.Fault();
			}},
		{"JointsOfALayout", EFault::TooManyElements, "/Sequence/Tables/0/Joints",
			[]
			{
				Zef::FPackedJointSequence Packed;
				Packed.Tables.emplace_back().Joints.resize(65536);
				return Zef::CheckJointSequence(Packed, 1);
			}},
		{"Surfaces", EFault::TooManyElements, "/Surfaces",
			Mesh(Nothing, With([](Zef::FLimits& Limits) { Limits.MaxEntries = 1; }))},
		{"PosesOfAnAnimation", EFault::TooManyElements, "/Sequence/Frames",
			[]
			{
				FDecoding Editor(EReceiver::Editor, With([](Zef::FLimits& Limits) { Limits.MaxFrames = 2; }));
				Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, SampleAnimation()));
				return Editor.Decoder.Fault();
			}},
		{"Overlong", EFault::BadText, "/Surfaces/0/Name", Mesh([](FMesh& M) { M.Surfaces[0].Name = "\xc0\xaf"; })},
		{"HalfACharacter", EFault::BadText, "/Joints/1/Name", Mesh([](FMesh& M) { M.Joints[1].Name = "a\xe2\x82"; })},
		{"Surrogate", EFault::BadText, "/Materials/0/Name",
			Mesh([](FMesh& M) { M.Materials[0].second.Name = "\xed\xa0\x80"; })},
		{"Nul", EFault::BadText, "/Materials/0/SubstanceAssetPath",
			Mesh([](FMesh& M) { M.Materials[0].second.SubstanceAssetPath = std::string("a\0b", 3); })},
		{"OfAPose", EFault::BadText, "/Sequence/Tables/0/Joints/0/Name",
			[]
			{
				const auto Changed = SampleAnimation();
				Changed->Sequence.Frames[0].Joints[0].Name = "\xff";
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, Changed));
				return Editor.Decoder.Fault();
			}},
		{"Surface", EFault::NameTooLong, "/Surfaces/1/Name",
			Mesh([](FMesh& M) { M.Surfaces[1].Name = std::string(513, 'n'); })},
		{"Path", EFault::NameTooLong, "/Materials/1/SubstanceGraphName",
			Mesh([](FMesh& M) { M.Materials[1].second.SubstanceGraphName = std::string(4097, 'n'); })},

		{"FrameAlone", EFault::SequenceUnexpected, "/Frames/0",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(0, 0)));
				return Editor.Decoder.Fault();
			}},
		{"EndAlone", EFault::SequenceUnexpected, "",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSequenceEnd(0));
				return Editor.Decoder.Fault();
			}},
		{"SecondBeginning", EFault::SequenceUnexpected, "",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
				Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
				std::uint64_t Item = 0;
				return Editor.Decoder.TakeTruncation(Item);
			}},
		{"Skipped", EFault::SequenceFrame, "/Frames/1",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
				Editor.Feed(Zef::EncodeSequenceFrame(1, SampleFrame(0, 0)));
				return Editor.Decoder.Fault();
			}},
		{"TooFew", EFault::SequenceLength, "/Frames",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
				Editor.Feed(Zef::EncodeSequenceEnd(1));
				return Editor.Decoder.Fault();
			}},
	};
}

} // namespace LinkTest
