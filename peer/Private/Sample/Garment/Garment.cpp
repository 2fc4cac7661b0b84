// SPDX-License-Identifier: MIT
#include "Sample/Garment/Garment.h"

#include "Sample/Garment/GarmentMotion.h"
#include "Sample/Garment/GarmentPieces.h"

namespace Zef::Peer
{

namespace
{

constexpr int FirstKey = 1;
constexpr int Translucent = 1;

} // namespace

FProjectObject MakeGarment(std::shared_ptr<const FFigure> Figure)
{
	FAssembly Assembly(FirstKey);
	const FGarmentMaterials Materials = AddGarmentMaterials(Assembly);
	const auto Pieces = std::make_shared<const FGarmentPieces>(*Figure, Materials);

	const std::vector<FGarmentPiece>& All = Pieces->All();
	for (std::size_t First = 0; First < All.size();)
	{
		std::vector<FPiece> Sections;
		std::size_t P = First;
		for (; P < All.size() && All[P].Surface == All[First].Surface; ++P)
		{
			Sections.push_back({All[P].Mesh, All[P].Material, {}});
		}
		const bool bSheer = All[First].Surface == "Capelet/Panel";
		Assembly.AddSurface(All[First].Surface, std::move(Sections), bSheer ? Translucent : 0);
		First = P;
	}

	FProjectObject Garment;
	Garment.Type = EObjectType::Garment;
	Garment.Source = "sample dress and capelet";
	Garment.Mesh = Assembly.Take();
	Garment.MakeMeshSequence = [Figure = std::move(Figure), Pieces] { return SimulateWalk(*Figure, *Pieces); };
	return Garment;
}

} // namespace Zef::Peer
