// SPDX-License-Identifier: MIT
#include "FaultCases.h"
#include "ItemDecoding.h"
#include "SampleRecords.h"

#include <limits>

namespace LinkTest
{

namespace
{
using Zef::EFault;
using Zef::EObjectType;
using Zef::EReceiver;

constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinite = std::numeric_limits<float>::infinity();

/** The editor's report on SampleMesh after a change to it. */
std::function<Zef::FLinkFault()> Mesh(std::function<void(Zef::FSurfaceMesh&)> Change)
{
	return [Change = std::move(Change)]
	{
		const auto Changed = SampleMesh();
		Change(*Changed);
		FDecoding Editor(EReceiver::Editor);
		Editor.Feed(Zef::EncodeSurfaceMesh(EObjectType::Avatar, Changed));
		return Editor.Decoder.Fault();
	};
}

/** The same for SampleAnimation. */
std::function<Zef::FLinkFault()> Animation(std::function<void(Zef::FJointAnimation&)> Change)
{
	return [Change = std::move(Change)]
	{
		const auto Changed = SampleAnimation();
		Change(*Changed);
		FDecoding Editor(EReceiver::Editor);
		Editor.Feed(Zef::EncodeJointAnimation(EObjectType::Avatar, Changed));
		return Editor.Decoder.Fault();
	};
}

/** The same for the second frame of a mesh sequence. */
std::function<Zef::FLinkFault()> Frame(std::function<void(Zef::FMeshSequenceFrame&)> Change)
{
	return [Change = std::move(Change)]
	{
		const auto Changed = SampleFrame(0, 1.0);
		Change(*Changed);
		FDecoding Editor(EReceiver::Editor);
		Editor.Feed(Zef::EncodeSequenceBegin(EObjectType::Garment, SampleMesh()));
		Editor.Feed(Zef::EncodeSequenceFrame(0, SampleFrame(0, 0.5)));
		Editor.Feed(Zef::EncodeSequenceFrame(1, Changed));
		return Editor.Decoder.Fault();
	};
}

/** The garment application's report on what the editor sends. */
std::function<Zef::FLinkFault()> Request(std::function<Zef::FEncodedItem()> Encode)
{
	return [Encode = std::move(Encode)]
	{
		FDecoding Application(EReceiver::GarmentApplication);
		Application.Feed(Encode());
		return Application.Decoder.Fault();
	};
}
/** Scalars of the channel that SampleMesh puts first. */
std::vector<std::pair<std::int32_t, float>>& ScalarsOfRoughness(Zef::FSurfaceMesh& Mesh)
{
	return Mesh.Materials[1].second.Expressions[0].second.Scalars;
}
} // namespace

std::vector<FFaultCase> MeaningFaultCases()
{
	using FMesh = Zef::FSurfaceMesh;
	using FAnimation = Zef::FJointAnimation;
	return {
		{"OfAReply", EFault::ObjectType, "/ObjectType",
			[]
			{
				FDecoding Editor(EReceiver::Editor);
				Editor.Feed(Zef::EncodeSurfaceMesh(static_cast<EObjectType>(6), SampleMesh()));
				return Editor.Decoder.Fault();
			}},
		{"OfARequest", EFault::ObjectType, "/ObjectType",
			Request(
				[] {
					return Zef::EncodeAnimationRequest({EObjectType::Invalid, {}}, {});
				})},
		{"NoneIsNoRequest", EFault::AnimationKind, "/AnimationKind",
			Request(
				[] {
					return Zef::EncodeAnimationRequest({EObjectType::Avatar, Zef::EAnimationKind::None}, {});
				})},
		{"OfTheEditorsAnimation", EFault::AnimationKind, "/AnimationKind",
			Request(
				[]
				{
					return Zef::EncodeJointAnimationRequest(
						{EObjectType::Avatar, static_cast<Zef::EAnimationKind>(3)}, SampleAnimation());
				})},

		{"Normals", EFault::CountMismatch, "/Surfaces/1/Normals",
			Mesh([](FMesh& M) { M.Surfaces[1].Normals.pop_back(); })},
		{"Tangents", EFault::CountMismatch, "/Surfaces/0/Tangents",
			Mesh([](FMesh& M) { M.Surfaces[0].Tangents.clear(); })},
		{"UVs", EFault::CountMismatch, "/Surfaces/0/UVs", Mesh([](FMesh& M) { M.Surfaces[0].UVs.pop_back(); })},
		{"FrameVertices", EFault::CountMismatch, "/Frames/1/Positions",
			Frame([](Zef::FMeshSequenceFrame& F)
				{ F.Positions.pop_back(), F.Normals.pop_back(), F.Tangents.pop_back(); })},

		{"First", EFault::VertexOffset, "/Surfaces/0/VertexOffset",
			Mesh([](FMesh& M) { M.Surfaces[0].VertexOffset = 1; })},
		{"Second", EFault::VertexOffset, "/Surfaces/1/VertexOffset",
			Mesh([](FMesh& M) { M.Surfaces[1].VertexOffset = 2; })},
		{"Negative", EFault::VertexOffset, "/Surfaces/0/VertexOffset",
			Mesh([](FMesh& M) { M.Surfaces[0].VertexOffset = -1; })},
		{"OverlapInTheModel", EFault::VertexOffset, "/Mesh/Surfaces/1/VertexOffset",
			Request(
				[]
				{
					const auto Changed = SampleAnimation();
					Changed->Mesh.Surfaces[1].VertexOffset = 2;
					return Zef::EncodeJointAnimationRequest({EObjectType::Avatar, {}}, Changed);
				})},

		{"BehindTheLast", EFault::IndexRange, "/Surfaces/1/Sections/0/Indices/5",
			Mesh([](FMesh& M) { M.Surfaces[1].Sections[0].Indices[5] = 4; })},
		{"Negative", EFault::IndexRange, "/Surfaces/0/Sections/0/Indices/0",
			Mesh([](FMesh& M) { M.Surfaces[0].Sections[0].Indices[0] = -1; })},
		{"TrailingToo", EFault::IndexRange, "/Surfaces/1/Sections/0/Indices/6",
			Mesh([](FMesh& M) { M.Surfaces[1].Sections[0].Indices[6] = 99; })},
		{"LocalInTheModel", EFault::IndexRange, "/Mesh/Surfaces/1/Sections/0/Indices/0",
			Request(
				[] {
					return Zef::EncodeJointAnimationRequest({EObjectType::Avatar, {}}, SampleAnimation());
				})},

		{"WithJoints", EFault::UVsMissing, "/Surfaces/0/UVs", Mesh([](FMesh& M) { M.Surfaces[0].UVs.clear(); })},
		{"WithJoints", EFault::EmptySurface, "/Surfaces/1/Positions",
			Mesh(
				[](FMesh& M)
				{
					M.Surfaces[1].Positions.clear();
					M.Surfaces[1].Normals.clear();
					M.Surfaces[1].Tangents.clear();
					M.Surfaces[1].UVs.clear();
				})},

		{"Itself", EFault::ParentOrder, "/Joints/1/ParentIndex", Mesh([](FMesh& M) { M.Joints[1].ParentIndex = 1; })},
		{"Later", EFault::ParentOrder, "/Joints/1/ParentIndex", Mesh([](FMesh& M) { M.Joints[1].ParentIndex = 2; })},
		{"Below", EFault::ParentOrder, "/Joints/2/ParentIndex", Mesh([](FMesh& M) { M.Joints[2].ParentIndex = -2; })},
		{"First", EFault::ParentOrder, "/Joints/0/ParentIndex", Mesh([](FMesh& M) { M.Joints[0].ParentIndex = 0; })},
		{"Second", EFault::SecondRoot, "/Joints/2/ParentIndex", Mesh([](FMesh& M) { M.Joints[2].ParentIndex = -1; })},
		{"Empty", EFault::JointName, "/Joints/1/Name", Mesh([](FMesh& M) { M.Joints[1].Name.clear(); })},
		{"TwiceButForCase", EFault::JointName, "/Joints/2/Name", Mesh([](FMesh& M) { M.Joints[2].Name = "sPINE"; })},

		{"None", EFault::JointName, "/Joints/2/Name", Mesh([](FMesh& M) { M.Joints[2].Name = "none"; })},
		{"TwiceInAPose", EFault::JointName, "/Sequence/Tables/0/Joints/1/Name",
			Animation([](FAnimation& A)
				{ A.Sequence.Frames[0].Joints[1].Name = A.Sequence.Frames[1].Joints[1].Name = "SPINE"; })},
		{"EmptyInAPose", EFault::JointName, "/Sequence/Tables/1/Joints/0/Name",
			Animation([](FAnimation& A) { A.Sequence.Frames[2].Joints[0].Name.clear(); })},

		{"TooFew", EFault::InfluenceCount, "/VertexInfluences",
			Mesh([](FMesh& M) { M.VertexInfluences.FirstWeight.pop_back(); })},
		{"WeightsAlone", EFault::InfluenceCount, "/VertexInfluences",
			Mesh([](FMesh& M) { M.VertexInfluences.FirstWeight.clear(); })},
		{"Descending", EFault::InfluenceOffsets, "/VertexInfluences/FirstWeight/3",
			Mesh([](FMesh& M) { M.VertexInfluences.FirstWeight[3] = 2; })},
		{"NotFromZero", EFault::InfluenceOffsets, "/VertexInfluences/FirstWeight/0",
			Mesh([](FMesh& M) { M.VertexInfluences.FirstWeight[0] = 1; })},
		{"NotToTheEnd", EFault::InfluenceOffsets, "/VertexInfluences/FirstWeight/7",
			Mesh([](FMesh& M) { M.VertexInfluences.FirstWeight[7] = 6; })},
		{"BeyondTheEnd", EFault::InfluenceOffsets, "/VertexInfluences/FirstWeight/2",
			Mesh([](FMesh& M) { M.VertexInfluences.FirstWeight[2] = 8; })},
		{"TooHigh", EFault::BoneIndexRange, "/VertexInfluences/1/Influences/1/BoneIndex",
			Mesh([](FMesh& M) { M.VertexInfluences.Weights[2].BoneIndex = 3; })},
		{"Negative", EFault::BoneIndexRange, "/VertexInfluences/3/Influences/0/BoneIndex",
			Mesh([](FMesh& M) { M.VertexInfluences.Weights[3].BoneIndex = -1; })},
		{"AboveOne", EFault::WeightRange, "/VertexInfluences/0/Influences/0/Weight",
			Mesh([](FMesh& M) { M.VertexInfluences.Weights[0].Weight = 1.5f; })},
		{"Negative", EFault::WeightRange, "/VertexInfluences/6/Influences/0/Weight",
			Mesh([](FMesh& M) { M.VertexInfluences.Weights[6].Weight = -0.25f; })},
		{"NotANumber", EFault::WeightRange, "/VertexInfluences/6/Influences/0/Weight",
			Mesh([](FMesh& M) { M.VertexInfluences.Weights[6].Weight = NotANumber; })},

		{"Position", EFault::NotFinite, "/Surfaces/1/Positions/2/Z",
			Mesh([](FMesh& M) { M.Surfaces[1].Positions[2].Z = NotANumber; })},
		{"Normal", EFault::NotFinite, "/Surfaces/0/Normals/0/X",
			Mesh([](FMesh& M) { M.Surfaces[0].Normals[0].X = Infinite; })},
		{"Tangent", EFault::NotFinite, "/Surfaces/0/Tangents/2/Y",
			Mesh([](FMesh& M) { M.Surfaces[0].Tangents[2].Y = -Infinite; })},
		{"UV", EFault::NotFinite, "/Surfaces/0/UVs/1/Y", Mesh([](FMesh& M) { M.Surfaces[0].UVs[1].Y = NotANumber; })},
		{"Joint", EFault::NotFinite, "/Joints/2/Transform",
			Mesh([](FMesh& M) { M.Joints[2].Transform.Scale.Y = NotANumber; })},
		{"Material", EFault::NotFinite, "/Materials/0/UVTransform",
			Mesh([](FMesh& M) { M.Materials[0].second.UVTransform.Translation.X = Infinite; })},
		{"Scalar", EFault::NotFinite, "/Materials/1/Expressions/0/Scalars/1",
			Mesh([](FMesh& M) { M.Materials[1].second.Expressions[0].second.Scalars[1].second = Infinite; })},
		{"Vector", EFault::NotFinite, "/Materials/1/Expressions/1/Vectors/0",
			Mesh([](FMesh& M) { M.Materials[1].second.Expressions[1].second.Vectors[0].second.W = NotANumber; })},
		{"Expression", EFault::NotFinite, "/Materials/1/Expressions/1/UVTransform",
			Mesh([](FMesh& M) { M.Materials[1].second.Expressions[1].second.UVTransform.Rotation.Z = NotANumber; })},
		{"Pose", EFault::NotFinite, "/Sequence/Transforms/2",
			Animation([](FAnimation& A) { A.Sequence.Frames[1].Joints[0].Transform.Rotation.W = NotANumber; })},
		{"PoseTime", EFault::NotFinite, "/Sequence/Frames/1/Time",
			Animation([](FAnimation& A) { A.Sequence.Frames[1].Time = NotANumber; })},
		{"FrameTime", EFault::NotFinite, "/Frames/1/Time",
			Frame([](Zef::FMeshSequenceFrame& F) { F.Time = Infinite; })},
		{"FramePosition", EFault::NotFinite, "/Frames/1/Positions/6/X",
			Frame([](Zef::FMeshSequenceFrame& F) { F.Positions[6].X = NotANumber; })},

		{"Material", EFault::KeyTwice, "/Materials/1", Mesh([](FMesh& M) { M.Materials[1].first = 9; })},
		{"Texture", EFault::KeyTwice, "/Textures/2", Mesh([](FMesh& M) { M.Textures[2].first = 100; })},
		{"Channel", EFault::KeyTwice, "/Materials/1/Expressions/1",
			Mesh([](FMesh& M) { M.Materials[1].second.Expressions[1].first = Zef::MaterialChannel::Roughness; })},
		{"Scalar", EFault::KeyTwice, "/Materials/1/Expressions/0/Scalars/2",
			Mesh([](FMesh& M) { M.Materials[1].second.Expressions[0].second.Scalars[2].first = 3; })},
		{"Vector", EFault::KeyTwice, "/Materials/1/Expressions/1/Vectors/1",
			Mesh(
				[](FMesh& M) {
					M.Materials[1].second.Expressions[1].second.Vectors.push_back({0, {}});
				})},

		{"Value", EFault::ScalarMissing, "/Materials/1/Expressions/0/Scalars",
			Mesh([](FMesh& M) { std::erase_if(ScalarsOfRoughness(M), [](const auto& S) { return S.first == 1; }); })},
		{"IntensityOfAMap", EFault::ScalarMissing, "/Materials/1/Expressions/0/Scalars",
			Mesh(
				[](FMesh& M)
				{
					M.Materials[1].second.Expressions[0].second.TextureId = M.Textures[0].first;
					std::erase_if(ScalarsOfRoughness(M), [](const auto& S) { return S.first == 0; });
				})},

		{"Two", EFault::TextureFormat, "/Textures/0/Format", Mesh([](FMesh& M) { M.Textures[0].second.Format = 2; })},
		{"Negative", EFault::TextureSize, "/Textures/1/Height",
			Mesh([](FMesh& M) { M.Textures[1].second.Height = -1; })},
		{"TooWide", EFault::TextureSize, "/Textures/1/Width",
			Mesh([](FMesh& M) { M.Textures[1].second.Width = 65537; })},
		{"TooFew", EFault::PixelCount, "/Textures/0/Pixels",
			Mesh([](FMesh& M) { M.Textures[0].second.Pixels.pop_back(); })},
		{"OfEightBitsForSixteen", EFault::PixelCount, "/Textures/0/Pixels",
			Mesh([](FMesh& M) { M.Textures[0].second.Format = 1; })},
		{"WithoutImage", EFault::PixelCount, "/Textures/2/Pixels",
			Mesh([](FMesh& M) { M.Textures[2].second.Pixels = {1}; })},

		{"Pose", EFault::TimeOrder, "/Sequence/Frames/2/Time",
			Animation([](FAnimation& A) { A.Sequence.Frames[2].Time = 0.25; })},
		{"Frame", EFault::TimeOrder, "/Frames/1/Time", Frame([](Zef::FMeshSequenceFrame& F) { F.Time = 0.25; })},
		{"ParentTooHigh", EFault::JointTable, "/Sequence/Tables/0/Joints/1/ParentIndex",
			Animation([](FAnimation& A)
				{ A.Sequence.Frames[0].Joints[1].ParentIndex = A.Sequence.Frames[1].Joints[1].ParentIndex = 3; })},
	};
}

} // namespace LinkTest
