// SPDX-License-Identifier: MIT
#include "Sample/Prop/Prop.h"

#include "Sample/Prop/Pieces.h"
#include "Sample/Prop/PropMaterials.h"

namespace Zef::Peer
{

namespace
{

constexpr int FirstKey = 300;
constexpr int Translucent = 1;

} // namespace

FProjectObject MakeProp()
{
	FAssembly Assembly(FirstKey);
	const FPropMaterials Materials = AddPropMaterials(Assembly);

	Assembly.AddSurface("Pouf", {{MakePouf(), Materials.Knit, {}}});
	Assembly.AddSurface("Sheepskin", {{MakeSheepskin(), Materials.Sheepskin, {}}});
	FTriangleMesh Piping;
	FTriangleMesh Cushion = MakeCushion(Piping);
	Assembly.AddSurface(
		"Cushion", {{std::move(Cushion), Materials.Velvet, {}}, {std::move(Piping), Materials.Piping, {}}});
	FTriangleMesh LampMetal, Globe, LampBase;
	MakeLamp(LampMetal, Globe, LampBase);
	Assembly.AddSurface("Lamp", {{std::move(LampMetal), Materials.Brass, {}}, {std::move(Globe), Materials.Globe, {}},
									{std::move(LampBase), Materials.Marble, {}}});
	FTriangleMesh TableTop, TableFrame;
	MakeTable(TableTop, TableFrame);
	Assembly.AddSurface(
		"Table", {{std::move(TableTop), Materials.Marble, {}}, {std::move(TableFrame), Materials.Brass, {}}});
	Assembly.AddSurface("Book", {{MakeBook(), Materials.Cover, {}}, {MakePapers(), Materials.Paper, {}}});
	FTriangleMesh Stalks, Ears;
	MakeGrasses(Stalks, Ears);
	Assembly.AddSurface("Grasses", {{std::move(Stalks), Materials.Stem, {}}, {std::move(Ears), Materials.Paper, {}}});
	FTriangleMesh Leaves, Stems;
	MakePlant(Leaves, Stems);
	Assembly.AddSurface("Plant", {{std::move(Leaves), Materials.Leaf, {}}, {std::move(Stems), Materials.Stem, {}},
									 {MakePot(), Materials.Clay, {}}, {MakeSoil(), Materials.Soil, {}}});
	Assembly.AddSurface("Vase", {{MakeVase(), Materials.Glass, {}}}, Translucent);

	FProjectObject Prop;
	Prop.Type = EObjectType::Prop;
	Prop.Source = "sample corner of a room";
	Prop.Mesh = Assembly.Take();
	return Prop;
}

} // namespace Zef::Peer
