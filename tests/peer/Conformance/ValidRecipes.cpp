// SPDX-License-Identifier: MIT
#include "RecipeMeshes.h"
#include "RecipeText.h"

#include <functional>

namespace ConformanceTest
{

namespace
{
using Zef::EObjectType;
using FMesh = Zef::FSurfaceMesh;

const Zef::FObjectTypeInfo AvatarJoints{EObjectType::Avatar, Zef::EAnimationKind::JointAnimation};

/** Items that are taken one after the other. */
FRecipe Taken(const char* Name, const char* About, const char* To, const std::vector<Zef::FEncodedItem>& Items)
{
	FCaseText Case(About, To);
	Case.Line("expect taken");
	std::uint64_t ItemNumber = 0;
	for (const Zef::FEncodedItem& Item : Items)
	{
		Case.Item(Item, ++ItemNumber);
	}
	return Case.As(std::string("valid/") + Name);
}

FRecipe Object(const char* Name, const char* About, EObjectType ObjectType, std::shared_ptr<FMesh> Mesh,
	const std::function<void(FMesh&)>& Change)
{
	Change(*Mesh);
	return Taken(Name, About, "editor", {Zef::EncodeSurfaceMesh(ObjectType, Mesh)});
}

/** The kept bytes of a version, one case for each file. */
std::vector<FRecipe> GoldenRecipes(int Version)
{
	const auto Golden = [Version](
							const char* Name, const char* To, const std::string& Expect, const char* Greeting = nullptr)
	{
		const std::string Folder = "v" + std::to_string(Version);
		FCaseText Case((std::string("The kept bytes of ") + Name + ".").c_str(), To);
		if (Version > 1)
		{
			Case.Line("version " + std::to_string(Version));
		}
		if (Greeting != nullptr)
		{
			Case.Line(Greeting);
		}
		return Case.Line("expect " + Expect).Line("golden " + Folder + "/" + Name).As("valid/" + Folder + "-" + Name);
	};
	const char* const Raw = "greeting raw";
	std::vector<FRecipe> Recipes{
		Golden("Hello", "application", "taken", Raw),
		Golden("Welcome", "editor", "taken", Raw),
		Golden("Refused", "editor", "refused 201"),
		Golden("Credit", "editor", "fault 101"),
		Golden("Enable", "application", "taken"),
		Golden("RequestUpdate", "application", "taken"),
		Golden("RequestAnimation", "application", "taken"),
		Golden("RequestAvailability", "application", "taken"),
		// The kept bytes of version 1 count indices in the surface, as a reply does.
		Golden("SendJointAnimation", "application",
			Version == 1 ? "fault 405 item 1 at /Mesh/Surfaces/1/Sections/0/Indices/0" : "taken"),
		Golden("SurfaceMesh", "editor", "taken"),
		Golden("JointAnimation", "editor", "taken"),
		Golden("SequenceBegin", "editor", "taken"),
		Golden("SequenceFrame", "editor", "fault 501 item 1 at /Frames/1"),
		Golden("SequenceEnd", "editor", "fault 501 item 1"),
		Golden("Availability", "editor", "taken"),
		Golden("Fault", "editor", "taken"),
	};
	if (Version > 1)
	{
		Recipes.push_back(Golden("UpdateAnnouncement", "editor", "taken"));
		Recipes.push_back(Golden("Closing", "editor", "refused 205"));
	}
	return Recipes;
}

std::vector<FRecipe> ObjectRecipes()
{
	const EObjectType Garment = EObjectType::Garment;
	const EObjectType Avatar = EObjectType::Avatar;
	return {
		Object(
			"EmptyObject", "An object of which there is nothing.", Garment, std::make_shared<FMesh>(), [](FMesh&) {}),
		Object("Cloth", "A cloth with a material and a texture.", Garment, Cloth(), [](FMesh&) {}),
		Object("Body", "A body with joints and weights.", Avatar, Body(), [](FMesh&) {}),
		Object("WithoutUVs", "A cloth without texture coordinates.", EObjectType::Prop, Cloth(),
			[](FMesh& Mesh) { Mesh.Surfaces[0].UVs.clear(); }),
		Object("TwoSurfaces", "The second surface begins where the first ends.", EObjectType::Outfit, Cloth(),
			[](FMesh& Mesh)
			{
				Mesh.Surfaces.push_back(Mesh.Surfaces[0]);
				Mesh.Surfaces[1].VertexOffset = 5;
			}),
		Object("IndicesLeftOver", "Four indices: one triangle, and one left over.", Garment, Cloth(),
			[](FMesh& Mesh) { Mesh.Surfaces[0].Sections[0].Indices.push_back(4); }),
		Object("UnknownMaterial", "A section of a material that the object does not have.", Garment, Cloth(),
			[](FMesh& Mesh) { Mesh.Surfaces[0].Sections[0].MaterialIndex = -44; }),
		Object("WithoutImage", "Textures of no format, and of no height.", Garment, Cloth(),
			[](FMesh& Mesh) {
				Mesh.Textures = {{3, {-1, 7, 7, {}}}, {4, {0, 5, 0, {}}}};
			}),
		Object("InfluencesWithoutJoints", "Weights mean nothing in an object without joints.", Garment, Cloth(),
			[](FMesh& Mesh)
			{
				Mesh.VertexInfluences.FirstWeight = {0, 1};
				Mesh.VertexInfluences.Weights = {{99, 1}};
			}),
		Object("NoInfluences", "A body whose vertices hang on no joint.", Avatar, Body(),
			[](FMesh& Mesh) { Mesh.VertexInfluences = {}; }),
		Object("ThirteenInfluences", "A vertex with thirteen weights.", Avatar, Body(),
			[](FMesh& Mesh)
			{
				Mesh.VertexInfluences.FirstWeight = {0, 13, 13, 13};
				Mesh.VertexInfluences.Weights.assign(13, {2, 1.0f / 13});
			}),
		Object("FoldedTriangles", "A triangle twice, one of two vertices, and three on an edge.", Garment, Cloth(),
			[](FMesh& Mesh) {
				Mesh.Surfaces[0].Sections[0].Indices = {0, 1, 2, 2, 1, 0, 0, 0, 1, 1, 2, 3, 1, 2, 4};
			}),
		Object("SixteenBits", "A texture of 16 bits, and one channel of every kind.", Garment, Cloth(),
			[](FMesh& Mesh)
			{
				Mesh.Textures[0].second = {1, 1, 2, std::vector<std::uint8_t>(16, 0x80)};
				auto& Expressions = Mesh.Materials[0].second.Expressions;
				const Zef::FMaterialExpression Channel = Expressions[0].second;
				Expressions.clear();
				for (const std::int32_t Key : {6, 5, 4, 3, 2, 1, 0, -9})
				{
					Expressions.emplace_back(Key, Channel);
				}
			}),
	};
}

std::vector<FRecipe> AnimationRecipes()
{
	auto InTheModel = Walk();
	Zef::FSurface& Surface = InTheModel->Mesh.Surfaces[0];
	Surface.VertexOffset = 100;
	Surface.Sections[0].Indices = {100, 101, 102};
	auto Nothing = Walk();
	Nothing->Sequence.Frames.clear();
	return {
		Taken("JointAnimation", "Two poses of a body.", "editor",
			{Zef::EncodeJointAnimation(EObjectType::Avatar, Walk())}),
		Taken("NoJointAnimation", "A body without poses: there is no animation.", "editor",
			{Zef::EncodeJointAnimation(EObjectType::Avatar, Nothing)}),
		Taken("MeshSequence", "Two frames of a cloth, with another reply between them.", "editor",
			{Zef::EncodeSequenceBegin(EObjectType::Garment, Cloth()), Zef::EncodeSequenceFrame(0, Fold(0)),
				Zef::EncodeAvailability({}), Zef::EncodeSequenceFrame(1, Fold(0)), Zef::EncodeSequenceEnd(2)}),
		Taken("NoMeshSequence", "A sequence without frames: there is no animation.", "editor",
			{Zef::EncodeSequenceBegin(EObjectType::Garment, Cloth()), Zef::EncodeSequenceEnd(0)}),
		Taken("AnimationOfTheEditor", "Indices of a model of which 100 vertices were left out.", "application",
			{Zef::EncodeJointAnimationRequest(AvatarJoints, InTheModel)}),
		Taken("Requests", "Every request, several open at once.", "application",
			{Zef::EncodeEnable(true), Zef::EncodeUpdateRequest({true, true}), Zef::EncodeAvailabilityRequest(),
				Zef::EncodeAnimationRequest(AvatarJoints, {}),
				Zef::EncodeAnimationRequest({EObjectType::Garment, Zef::EAnimationKind::MeshSequence}, {}),
				Zef::EncodeAvailabilityRequest(), Zef::EncodeEnable(false)}),
	};
}
} // namespace

std::vector<FRecipe> ValidRecipes()
{
	std::vector<FRecipe> Recipes;
	for (std::vector<FRecipe> More : {GoldenRecipes(1), GoldenRecipes(2), ObjectRecipes(), AnimationRecipes()})
	{
		Recipes.insert(Recipes.end(), std::make_move_iterator(More.begin()), std::make_move_iterator(More.end()));
	}
	return Recipes;
}

} // namespace ConformanceTest
