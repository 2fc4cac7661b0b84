// SPDX-License-Identifier: MIT
#include "Sample/Avatar/Avatar.h"

#include "Sample/Avatar/AvatarTextures.h"
#include "Sample/Avatar/FacePieces.h"
#include "Sample/Avatar/Hair.h"
#include "Sample/Avatar/SkinUnwrap.h"
#include "Sample/Parts/Assembly.h"
#include "Sample/Parts/Kinds.h"
#include "Sample/Rig/Poses.h"

namespace Zef::Peer
{

namespace
{

constexpr int FirstKey = 100;

/** A piece that hangs on one joint, brought to the standing pose. */
FPiece OnJoint(const FFigure& Figure, FTriangleMesh Mesh, int Material, const char* Joint)
{
	FPiece Piece{std::move(Mesh), Material, {}};
	Piece.Weights = RigidWeights(Figure.Skeleton.Find(Joint), Piece.Mesh.Positions.size());
	ApplyMoves(Piece.Mesh, Piece.Weights, Figure.StandingMoves);
	return Piece;
}

/** A piece that follows the skin under it. */
FPiece OnSkin(const FFigure& Figure, FTriangleMesh Mesh, int Material)
{
	FPiece Piece{std::move(Mesh), Material, {}};
	Piece.Weights = WeightsOf(Figure.Skeleton, Piece.Mesh);
	ApplyMoves(Piece.Mesh, Piece.Weights, Figure.StandingMoves);
	return Piece;
}

FJointSequence MakeWalk(const FFigure& Figure)
{
	FJointSequence Walk;
	for (int F = 0; F < WalkFrames; ++F)
	{
		FJointSequenceFrame Frame;
		Frame.Time = F / WalkFramesPerSecond;
		Frame.Joints = ToRecords(Figure.Skeleton, PlaceJoints(Figure.Skeleton, WalkPose(Figure.Skeleton, F)));
		Walk.Frames.push_back(std::move(Frame));
	}
	return Walk;
}

} // namespace

FProjectObject MakeAvatar(const FFigure& Figure)
{
	FAssembly Assembly(FirstKey);
	const int SkinColor = Assembly.AddTexture(MakeSkinColor());
	const int SkinRoughness = Assembly.AddTexture(MakeSkinRoughness());
	const int IrisColor = Assembly.AddTexture(MakeIris());
	const int HairColor = Assembly.AddTexture(MakeHairColor());
	const int HairNormal = Assembly.AddTexture(MakeHairNormal());

	const int Skin = Assembly.AddMaterial(
		FLook("Skin", Kind::Skin).ColorMap(SkinColor).Roughness(0.5f).RoughnessMap(SkinRoughness, 1).Specular(0.4f));
	const int Lips =
		Assembly.AddMaterial(FLook("Lips", Kind::Skin).Color(0.46f, 0.115f, 0.11f).Roughness(0.34f).Specular(0.5f));
	const int Nails =
		Assembly.AddMaterial(FLook("Nails", Kind::Shiny).Color(0.52f, 0.17f, 0.15f).Roughness(0.18f).Specular(0.6f));
	const int Brows =
		Assembly.AddMaterial(FLook("Brows", Kind::Matte).Color(0.050f, 0.028f, 0.018f).Roughness(0.85f).Specular(0.2f));
	const int Lashes =
		Assembly.AddMaterial(FLook("Lashes", Kind::Matte).Color(0.010f, 0.008f, 0.007f).Roughness(0.8f).Specular(0.2f));
	const int Eyes =
		Assembly.AddMaterial(FLook("Eyes", Kind::Shiny).ColorMap(IrisColor).Roughness(0.08f).Specular(0.6f));
	const int Hair = Assembly.AddMaterial(FLook("Hair", Kind::Fur)
											  .ColorMap(HairColor)
											  .NormalMap(HairNormal, 0.8f)
											  .Roughness(0.45f)
											  .Specular(0.3f)
											  .Place(4, 1));
	const int Bun = Assembly.AddMaterial(FLook("Bun", Kind::Fur)
											 .ColorMap(HairColor)
											 .NormalMap(HairNormal, 0.8f)
											 .Roughness(0.45f)
											 .Specular(0.3f)
											 .Place(1.5f, 1.5f, 8));

	FUnwrappedSkin Unwrapped = UnwrapSkin(Figure);
	ApplyMoves(Unwrapped.Mesh, Unwrapped.Weights, Figure.StandingMoves);
	Assembly.AddSurface("Body", {{std::move(Unwrapped.Mesh), Skin, std::move(Unwrapped.Weights)}});
	Assembly.AddSurface("Nails", {OnSkin(Figure, MakeNails(*Figure.Body), Nails)});
	Assembly.AddSurface("Face",
		{OnJoint(Figure, MakeLips(*Figure.Body), Lips, "head"), OnJoint(Figure, MakeBrows(*Figure.Body), Brows, "head"),
			OnJoint(Figure, MakeLashes(*Figure.Body), Lashes, "head")});
	Assembly.AddSurface("Eyes",
		{OnJoint(Figure, MakeEyeball(false), Eyes, "eye_l"), OnJoint(Figure, MakeEyeball(true), Eyes, "eye_r")});
	Assembly.AddSurface(
		"Hair", {OnJoint(Figure, MakeHairCap(), Hair, "head"), OnJoint(Figure, MakeBun(), Bun, "head")});

	FProjectObject Avatar;
	Avatar.Type = EObjectType::Avatar;
	Avatar.Source = "sample avatar";
	Avatar.Mesh = Assembly.Take();
	Avatar.Mesh.Joints = ToRecords(Figure.Skeleton, Figure.StandingPlaces);
	Avatar.JointSequence = MakeWalk(Figure);
	return Avatar;
}

} // namespace Zef::Peer
