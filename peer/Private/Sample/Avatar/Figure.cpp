// SPDX-License-Identifier: MIT
#include "Sample/Avatar/Figure.h"

#include "Sample/Body/Body.h"
#include "Sample/Rig/Poses.h"

namespace Zef::Peer
{

FFigure MakeFigure()
{
	FFigure Figure;
	Figure.Body = MakeBody();
	Figure.Skin = MakeBodySkin(*Figure.Body);
	Figure.SkinWeights = WeightsOf(Figure.Skeleton, Figure.Skin);
	Figure.StandingPlaces = PlaceJoints(Figure.Skeleton, StandingPose(Figure.Skeleton));
	Figure.StandingMoves = MovesFromSymmetric(Figure.Skeleton, Figure.StandingPlaces);
	return Figure;
}

void PoseMesh(
	FTriangleMesh& Mesh, const FSkinWeights& Weights, const FFigure& Figure, const std::vector<FRigid>& Places)
{
	ApplyMoves(Mesh, Weights, MovesFromSymmetric(Figure.Skeleton, Places));
}

} // namespace Zef::Peer
