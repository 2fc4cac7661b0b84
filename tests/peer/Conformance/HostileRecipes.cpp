// SPDX-License-Identifier: MIT
#include "RecipeMeshes.h"
#include "RecipeText.h"
#include "protocol/ItemDecoding.h"

#include <flatbuffers/flatbuffers.h>

#include <cstring>
#include <functional>
#include <limits>

namespace ConformanceTest
{

namespace
{
using Zef::EFault;
using Zef::EFrame;
using Zef::EObjectType;
using FMesh = Zef::FSurfaceMesh;

constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};

std::string Number(EFault Code)
{
	return std::to_string(static_cast<unsigned>(Code));
}

std::string FaultLine(EFault Code, std::uint64_t Item, const std::string& Path)
{
	return "expect fault " + Number(Code) + (Item == 0 ? "" : " item " + std::to_string(Item)) +
		   (Path.empty() ? "" : " at " + Path);
}

/** What the library's decoder says to the items: the words of the report. */
std::string Words(Zef::EReceiver Receiver, const std::vector<Zef::FEncodedItem>& Items)
{
	LinkTest::FDecoding End(Receiver);
	for (const Zef::FEncodedItem& Item : Items)
	{
		End.Feed(Item);
	}
	return "says " + End.Decoder.Fault().Message;
}

/** Items of which the last is refused. */
FRecipe Items(EFault Code, const char* About, const std::string& Path, const std::vector<Zef::FEncodedItem>& Items,
	Zef::EReceiver Receiver = Zef::EReceiver::Editor, const char* Option = nullptr, const char* Suffix = "")
{
	FCaseText Case(About, Receiver == Zef::EReceiver::Editor ? "editor" : "application");
	if (Option != nullptr)
	{
		Case.Line(Option);
	}
	Case.Line(FaultLine(Code, Items.size(), Path)).Line(Words(Receiver, Items));
	std::uint64_t ItemNumber = 0;
	for (const Zef::FEncodedItem& Item : Items)
	{
		Case.Item(Item, ++ItemNumber);
	}
	return Case.As(std::string("hostile/") + Zef::FaultInfo(Code).Name + Suffix);
}

/** A mesh that an editor refuses as a reply, and an application as the mesh of an animation. */
std::vector<FRecipe> BothWays(EFault Code, const char* About, const std::string& Path,
	const std::shared_ptr<FMesh>& Mesh, const char* Option = nullptr)
{
	const auto Animation = std::make_shared<Zef::FJointAnimation>();
	Animation->Mesh = *Mesh;
	return {
		Items(Code, About, Path, {Zef::EncodeSurfaceMesh(EObjectType::Avatar, Mesh)}, Zef::EReceiver::Editor, Option),
		Items(Code, About, "/Mesh" + Path, {Zef::EncodeJointAnimationRequest(AvatarJoints, Animation)},
			Zef::EReceiver::GarmentApplication, Option, "-OfTheEditor")};
}

std::vector<FRecipe> Cloth(EFault Code, const char* About, const std::string& Path,
	const std::function<void(FMesh&)>& Change, const char* Option = nullptr)
{
	const auto Mesh = ConformanceTest::Cloth();
	Change(*Mesh);
	return BothWays(Code, About, Path, Mesh, Option);
}

std::vector<FRecipe> Body(
	EFault Code, const char* About, const std::string& Path, const std::function<void(FMesh&)>& Change)
{
	const auto Mesh = ConformanceTest::Body();
	Change(*Mesh);
	return BothWays(Code, About, Path, Mesh);
}

/** Recipes of several functions in one list. */
std::vector<FRecipe> Joined(std::vector<std::vector<FRecipe>> Lists)
{
	std::vector<FRecipe> Recipes;
	for (std::vector<FRecipe>& List : Lists)
	{
		Recipes.insert(Recipes.end(), std::make_move_iterator(List.begin()), std::make_move_iterator(List.end()));
	}
	return Recipes;
}

/** The header with each 64-bit number of one value replaced by another. */
Zef::FEncodedItem Replaced(Zef::FEncodedItem Item, std::uint64_t From, std::uint64_t To)
{
	for (std::size_t Place = 0; Place + sizeof(From) <= Item.Header.size(); Place += 4)
	{
		if (std::memcmp(&Item.Header[Place], &From, sizeof(From)) == 0)
		{
			std::memcpy(&Item.Header[Place], &To, sizeof(To));
		}
	}
	Item.Chunks.clear();
	return Item;
}

Zef::FEncodedItem WholeCloth()
{
	return Zef::EncodeSurfaceMesh(EObjectType::Garment, ConformanceTest::Cloth());
}

/** The header of a SurfaceMeshReply with an object type and no mesh, written by hand. */
Zef::FBytes ReplyWithoutMesh()
{
	flatbuffers::FlatBufferBuilder Builder;
	const auto BodyStart = Builder.StartTable();
	Builder.AddElement<std::int32_t>(4, 2, 0);
	const flatbuffers::Offset<void> Reply(Builder.EndTable(BodyStart));
	const auto ItemStart = Builder.StartTable();
	Builder.AddElement<std::uint8_t>(4, 6, 0);
	Builder.AddOffset(6, Reply);
	Builder.FinishSizePrefixed(flatbuffers::Offset<flatbuffers::Table>(Builder.EndTable(ItemStart)));
	const auto View = Builder.GetBufferSpan();
	return {View.begin(), View.end()};
}

std::vector<FRecipe> FramingRecipes()
{
	const Zef::FEncodedItem Item = WholeCloth();
	const auto At = [](EFault Code, std::uint64_t ItemNumber, const std::string& Words)
	{ return FaultLine(Code, ItemNumber, "") + "\nsays " + Words; };
	const std::string Arrays = std::to_string(Item.PayloadBytes);
	Zef::FBytes Unknown = FCaseText::Prefix(EFrame::Item, 1);
	Unknown[4] = 99;
	return {
		FCaseText("24 letters in place of a prefix.", "editor")
			.Line(At(EFault::BadPrefix, 0, "A prefix that begins with \"ZTL1\" was expected; another message came."))
			.Message({Zef::FBytes(24, 'x'), {}})
			.As("hostile/BadPrefix"),
		FCaseText("An Item message without the part that holds the header.", "editor")
			.Line(At(EFault::PartCount, 1, "2 parts were expected; 1 came."))
			.Message({FCaseText::Prefix(EFrame::Item, 1)})
			.As("hostile/PartCount"),
		FCaseText("A message of the kind 99.", "editor")
			.Line(At(EFault::UnknownFrame, 0, "A frame of kind 1 to 6 was expected; 99 came."))
			.Message({Unknown, {}})
			.As("hostile/UnknownFrame"),
		FCaseText("A piece of 101 bytes for an end that takes 100.", "editor")
			.Line("bound")
			.Line("needs MaxPieceBytes=100")
			.Line(At(EFault::PieceTooLarge, 1, "At most 100 bytes were expected; 101 came."))
			.Header(Item.Header)
			.Piece(Zef::FBytes(101))
			.As("hostile/PieceTooLarge"),
		FCaseText("A piece of item 7, which was never begun.", "editor")
			.Line(At(EFault::PieceUnexpected, 7, "No piece was expected; one of item 7 came."))
			.Piece(Zef::FBytes(4), 7)
			.As("hostile/PieceUnexpected"),
		FCaseText("The first piece begins at byte 4.", "editor")
			.Line(At(EFault::PieceOffset, 1, "The piece at 0 was expected; that at 4 came."))
			.Header(Item.Header)
			.Piece(Zef::FBytes(4), 1, 4)
			.As("hostile/PieceOffset"),
		FCaseText("A piece that is longer than all arrays together.", "editor")
			.Line(At(EFault::PieceOverrun, 1,
				"At most " + Arrays + " more bytes were expected; " + std::to_string(Item.PayloadBytes + 1) + " came."))
			.Header(Item.Header)
			.Piece(Zef::FBytes(Item.PayloadBytes + 1))
			.As("hostile/PieceOverrun"),
		FCaseText("The next item comes when none of the arrays has.", "editor")
			.Line(At(
				EFault::Truncated, 1, Arrays + " bytes of this SurfaceMesh were expected; the next item came after 0."))
			.Header(Item.Header)
			.Item(Zef::EncodeAvailability({}), 2)
			.As("hostile/Truncated"),
		FCaseText("A header whose arrays never come.", "editor")
			.Line("needs StallMilliseconds=30")
			.Line(At(EFault::Stalled, 1, "A piece was expected; none came for 30 milliseconds."))
			.Header(Item.Header)
			.As("hostile/Stalled"),
		FCaseText("A header of more than 100 bytes for an end that takes 100.", "editor")
			.Line("bound")
			.Line("needs MaxHeaderBytes=100")
			.Line(At(EFault::HeaderTooLarge, 1,
				"At most 100 bytes were expected; " + std::to_string(Item.Header.size()) + " came."))
			.Header(Item.Header)
			.As("hostile/HeaderTooLarge"),
		FCaseText("A hundred requests of 36 bytes at once for an end with a window of 1000 bytes that gives no credit.",
			"application")
			.Line("needs WindowBytes=1000")
			.Line("needs MaxItemBytes=1")
			.Line("repeat 100")
			.Line("expect refused " + Number(EFault::WindowOverrun))
			.Item(Zef::EncodeAvailabilityRequest())
			.As("hostile/WindowOverrun"),
	};
}

std::vector<FRecipe> GreetingRecipes()
{
	const auto Refused = [](EFault Code) { return "expect refused " + Number(Code); };
	std::vector<FRecipe> Recipes;
	Recipes.push_back(FCaseText("An editor that speaks the versions 60007 to 60009.", "application")
						  .Line("greeting raw")
						  .Line(Refused(EFault::VersionUnknown))
						  .Message({FCaseText::Prefix(EFrame::Hello),
							  Zef::EncodeHello({60007, 60009, "from the future", 16 << 20, 4 << 20})})
						  .As("hostile/VersionUnknown"));
	Recipes.push_back(FCaseText("A request before Hello.", "application")
						  .Line("greeting raw")
						  .Line(Refused(EFault::NotGreeted))
						  .Item(Zef::EncodeEnable(true))
						  .As("hostile/NotGreeted"));
	Recipes.push_back(FCaseText("A Hello of 40 bytes that are no table.", "application")
						  .Line("greeting raw")
						  .Line(Refused(EFault::BadHello))
						  .Message({FCaseText::Prefix(EFrame::Hello), Zef::FBytes(40, 0xff)})
						  .As("hostile/BadHello"));
	Recipes.push_back(
		FCaseText("An editor beside another one at an application that serves one.", "application")
			.Line("greeting raw")
			.Line("needs MaxClients=1")
			.Line(Refused(EFault::TooManyClients))
			.Message({FCaseText::Prefix(EFrame::Hello), Zef::EncodeHello({1, 1, "one too many", 16 << 20, 4 << 20})})
			.As("hostile/TooManyClients"));
	return Recipes;
}

std::vector<FRecipe> StructureRecipes()
{
	const auto Raw = [](EFault Code, const char* About, const char* Path, const Zef::FBytes& Header)
	{
		Zef::FEncodedItem Item;
		Item.Header = Header;
		return Items(Code, About, Path, {Item});
	};
	return Joined({{Raw(EFault::BadTable, "64 bytes of ff in place of a header.", "", Zef::FBytes(64, 0xff)),
					   Items(EFault::UnknownItem, "An editor is sent a request.", "", {Zef::EncodeEnable(true)}),
					   Raw(EFault::MissingField, "A SurfaceMeshReply without a mesh.", "/Mesh", ReplyWithoutMesh()),
					   Items(EFault::OverBudget, "Arrays of 2147483647 elements each.", "",
						   {Replaced(WholeCloth(), 5, 0x7fffffff)}, Zef::EReceiver::Editor, "bound"),
					   FCaseText("A good object for an end that has no memory for its arrays.", "editor")
						   .Line("needs Memory=0")
						   .Line(FaultLine(EFault::OutOfMemory, 1, "/Surfaces/0/Positions"))
						   .Line("says Memory for 5 elements was expected; there is none.")
						   .Item(WholeCloth())
						   .As("hostile/OutOfMemory"),
					   Items(EFault::PayloadSize, "The header says 7 bytes of arrays, the counts say more.",
						   "/payload_bytes", {Replaced(WholeCloth(), WholeCloth().PayloadBytes, 7)}),
					   Items(EFault::TooManyElements, "A surface of 2147483648 vertices.", "/Surfaces/0/Positions",
						   {Replaced(WholeCloth(), 5, 0x80000000)})},
		Cloth(EFault::BadText, "The name of a surface is the byte ff.", "/Surfaces/0/Name",
			[](FMesh& Mesh) { Mesh.Surfaces[0].Name = "\xff"; }),
		Cloth(
			EFault::NameTooLong, "The name of a material has 513 bytes.", "/Materials/0/Name",
			[](FMesh& Mesh) { Mesh.Materials[0].second.Name = std::string(513, 'n'); }, "bound")});
}

/** Cloth whose first surface does not begin at the first vertex. */
std::shared_ptr<FMesh> LateCloth()
{
	auto Mesh = ConformanceTest::Cloth();
	Mesh->Surfaces[0].VertexOffset = 1;
	return Mesh;
}

/** An animation of two surfaces that claim the same vertices of the model. */
std::shared_ptr<Zef::FJointAnimation> Overlap()
{
	auto Animation = std::make_shared<Zef::FJointAnimation>();
	Animation->Mesh = *ConformanceTest::Cloth();
	Animation->Mesh.Surfaces.push_back(Animation->Mesh.Surfaces[0]);
	Animation->Mesh.Surfaces[1].VertexOffset = 4;
	return Animation;
}

std::vector<FRecipe> MeshRecipes()
{
	return Joined({{Items(EFault::ObjectType, "An object of the type 6.", "/ObjectType",
						{Zef::EncodeSurfaceMesh(static_cast<EObjectType>(6), ConformanceTest::Cloth())}),
					   Items(EFault::AnimationKind, "A request for an animation of the kind 2, none.", "/AnimationKind",
						   {Zef::EncodeAnimationRequest({EObjectType::Avatar, Zef::EAnimationKind::None}, {})},
						   Zef::EReceiver::GarmentApplication),
					   Items(EFault::VertexOffset, "The first surface begins at vertex 1.", "/Surfaces/0/VertexOffset",
						   {Zef::EncodeSurfaceMesh(EObjectType::Garment, LateCloth())}),
					   Items(EFault::VertexOffset, "The second surface begins inside the first.",
						   "/Mesh/Surfaces/1/VertexOffset", {Zef::EncodeJointAnimationRequest(AvatarJoints, Overlap())},
						   Zef::EReceiver::GarmentApplication, nullptr, "-OfTheEditor")},
		Cloth(EFault::CountMismatch, "Four normals for five vertices.", "/Surfaces/0/Normals",
			[](FMesh& Mesh) { Mesh.Surfaces[0].Normals.pop_back(); }),
		Cloth(EFault::IndexRange, "A triangle names vertex 5 of five.", "/Surfaces/0/Sections/0/Indices/2",
			[](FMesh& Mesh) { Mesh.Surfaces[0].Sections[0].Indices[2] = 5; }),
		Body(EFault::UVsMissing, "A body without texture coordinates.", "/Surfaces/0/UVs",
			[](FMesh& Mesh) { Mesh.Surfaces[0].UVs.clear(); }),
		Body(EFault::EmptySurface, "A body whose second surface has no vertex.", "/Surfaces/1/Positions",
			[](FMesh& Mesh)
			{
				Mesh.Surfaces.emplace_back().Name = "Nothing";
				Mesh.Surfaces[1].VertexOffset = 3;
			}),
		Body(EFault::ParentOrder, "The parent of joint 1 is joint 2.", "/Joints/1/ParentIndex",
			[](FMesh& Mesh) { Mesh.Joints[1].ParentIndex = 2; }),
		Body(EFault::SecondRoot, "Joint 2 has no parent.", "/Joints/2/ParentIndex",
			[](FMesh& Mesh) { Mesh.Joints[2].ParentIndex = -1; }),
		Body(EFault::JointName, "\"SPINE\" and \"Spine\".", "/Joints/2/Name",
			[](FMesh& Mesh) { Mesh.Joints[2].Name = "SPINE"; }),
		Body(EFault::InfluenceCount, "Weights for two of three vertices.", "/VertexInfluences",
			[](FMesh& Mesh) {
				Mesh.VertexInfluences.FirstWeight = {0, 1, 4};
			}),
		Body(EFault::InfluenceOffsets, "The offsets of the weights go back from 3 to 2.",
			"/VertexInfluences/FirstWeight/2",
			[](FMesh& Mesh) {
				Mesh.VertexInfluences.FirstWeight = {0, 3, 2, 4};
			}),
		Body(EFault::BoneIndexRange, "A weight of joint 3 of three.", "/VertexInfluences/1/Influences/1/BoneIndex",
			[](FMesh& Mesh) { Mesh.VertexInfluences.Weights[2].BoneIndex = 3; }),
		Body(EFault::WeightRange, "A weight of -0.5.", "/VertexInfluences/2/Influences/0/Weight",
			[](FMesh& Mesh) { Mesh.VertexInfluences.Weights[3].Weight = -0.5f; }),
		Cloth(EFault::NotFinite, "A position that is not a number.", "/Surfaces/0/Positions/3/Z",
			[](FMesh& Mesh) { Mesh.Surfaces[0].Positions[3].Z = NotANumber; }),
		Cloth(EFault::KeyTwice, "Two textures of the key 3.", "/Textures/1",
			[](FMesh& Mesh) {
				Mesh.Textures.push_back({3, {-1, 0, 0, {}}});
			}),
		Cloth(EFault::TextureFormat, "A texture of the format 2.", "/Textures/0/Format",
			[](FMesh& Mesh) { Mesh.Textures[0].second.Format = 2; }),
		Cloth(EFault::TextureSize, "A texture of the width -1.", "/Textures/0/Width",
			[](FMesh& Mesh) { Mesh.Textures[0].second.Width = -1; }),
		Cloth(EFault::PixelCount, "Four bytes of pixels for two pixels.", "/Textures/0/Pixels",
			[](FMesh& Mesh) { Mesh.Textures[0].second.Width = 2; }),
		Cloth(EFault::ScalarMissing, "A roughness channel without its value, key 1.",
			"/Materials/0/Expressions/0/Scalars",
			[](FMesh& Mesh) {
				Mesh.Materials[0].second.Expressions[0].second.Scalars = {{0, 1}, {3, 1}};
			})});
}

std::vector<FRecipe> AnimationRecipes()
{
	const auto Walk = [](EFault Code, const char* About, const char* Path, auto Change)
	{
		const auto Animation = ConformanceTest::Walk();
		Change(*Animation);
		return std::vector<FRecipe>{
			Items(Code, About, Path, {Zef::EncodeJointAnimation(EObjectType::Avatar, Animation)}),
			Items(Code, About, Path, {Zef::EncodeJointAnimationRequest(AvatarJoints, Animation)},
				Zef::EReceiver::GarmentApplication, nullptr, "-OfTheEditor")};
	};
	const Zef::FEncodedItem Begin = Zef::EncodeSequenceBegin(EObjectType::Garment, ConformanceTest::Cloth());
	return Joined({Walk(EFault::TimeOrder, "The second pose is earlier than the first.", "/Sequence/Frames/1/Time",
					   [](Zef::FJointAnimation& Animation) { Animation.Sequence.Frames[1].Time = -1; }),
		Walk(EFault::JointTable, "A joint of a pose has the parent 3 of three joints.",
			"/Sequence/Tables/0/Joints/0/ParentIndex",
			[](Zef::FJointAnimation& Animation)
			{
				for (Zef::FJointSequenceFrame& Frame : Animation.Sequence.Frames)
				{
					Frame.Joints[0].ParentIndex = 3;
				}
			}),
		{Items(EFault::SequenceUnexpected, "A frame without a sequence.", "/Frames/0",
			 {Zef::EncodeSequenceFrame(0, Fold(0))}),
			Items(EFault::SequenceFrame, "A sequence whose first frame is number 1.", "/Frames/1",
				{Begin, Zef::EncodeSequenceFrame(1, Fold(0))}),
			Items(EFault::SequenceLength, "A sequence of one frame whose end tells of two.", "/Frames",
				{Begin, Zef::EncodeSequenceFrame(0, Fold(0)), Zef::EncodeSequenceEnd(2)})}});
}

std::vector<FRecipe> EndpointRecipes()
{
	const auto Opening = [](EFault Code) { return "expect opening " + Number(Code); };
	const auto ByTheProgram = [](EFault Code, const char* About, const char* Test)
	{
		return FCaseText(About, "editor")
			.Line(std::string("provoked by ") + Test)
			.Line("expect program " + Number(Code))
			.As(std::string("hostile/") + Zef::FaultInfo(Code).Name);
	};
	return {
		FCaseText("An editor that asks for everything and is gone when it comes.", "application")
			.Line("expect told " + Number(EFault::PeerLost))
			.Item(Zef::EncodeUpdateRequest({}))
			.Line("close")
			.As("hostile/PeerLost"),
		FCaseText("An address that other machines reach, without keys.", "application")
			.Line("open tcp://0.0.0.0:5555")
			.Line(Opening(EFault::AddressRefused))
			.As("hostile/AddressRefused"),
		FCaseText("An address that another application serves.", "application")
			.Line("open taken")
			.Line(Opening(EFault::AddressTaken))
			.As("hostile/AddressTaken"),
		FCaseText("The garment application has no project; it is not the editor's fault.", "editor")
			.Line("expect told " + Number(EFault::PeerFailed) + " at /Project")
			.Line("says A project was expected to be open; there is none.")
			.Item(Zef::EncodeFault(
				Zef::MakeFault(EFault::PeerFailed, "/Project", "A project was expected to be open; there is none.")))
			.As("hostile/PeerFailed"),
		FCaseText("Five thousand requests at once for an end that takes ten in a second.", "application")
			.Line("needs MaxRequestsPerSecond=10")
			.Line("repeat 5000")
			.Line("expect refused " + Number(EFault::RateExceeded))
			.Item(Zef::EncodeEnable(true))
			.As("hostile/RateExceeded"),
		FCaseText("A garment application that its user closes.", "editor")
			.Line("version 2")
			.Line("expect refused " + Number(EFault::Closing))
			.Message({FCaseText::Prefix(Zef::EFrame::Refused),
				Zef::EncodeRefused({EFault::Closing, "The garment application was closed.", 1, 2})})
			.As("hostile/Closing"),
		ByTheProgram(EFault::KeysRefused, "Keys that are missing, unsafe or not admitted.", "Keys"),
		ByTheProgram(EFault::UserRefused, "The other end belongs to another user.", "Access"),
		ByTheProgram(EFault::BadRecording, "A file that is no recording.", "Recording"),
		ByTheProgram(EFault::RecordingStopped, "A disk that is full.", "Recording"),
	};
}
} // namespace

std::vector<FRecipe> HostileRecipes()
{
	return Joined({FramingRecipes(), GreetingRecipes(), StructureRecipes(), MeshRecipes(), AnimationRecipes(),
		EndpointRecipes()});
}

} // namespace ConformanceTest
