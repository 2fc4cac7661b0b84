// SPDX-License-Identifier: MIT
#include "FilesFixture.h"

using namespace Zef;
using namespace Zef::Peer;

namespace
{

class ModelUnits : public FModelFiles
{
protected:
	FLoadResult LoadIn(float UnstatedUnit, const std::string& File)
	{
		Options.UnstatedUnit = UnstatedUnit;
		SetModelReaderOptions(Options);
		return LoadObject(EObjectType::Prop, {File});
	}
};

/** A triangle of this width and height. */
std::string Obj(int Size)
{
	const std::string S = std::to_string(Size);
	return "v 0 0 0\nv " + S + " 0 0\nv 0 " + S + " 0\nf 1 2 3\n";
}

/** A triangle (0, 0, 0), (1, 0, 0), (0, 1, 0) with these lines of global settings. */
std::string Fbx(const std::string& Settings)
{
	return "; FBX 7.3.0 project file\nFBXHeaderExtension: {\n\tFBXHeaderVersion: 1003\n\tFBXVersion: 7300\n}\n"
		   "GlobalSettings: {\n\tVersion: 1000\n\tProperties70: {\n" +
		   Settings +
		   "\t}\n}\nObjects: {\n\tGeometry: 1, \"Geometry::\", \"Mesh\" {\n"
		   "\t\tVertices: *9 {\n\t\t\ta: 0,0,0,1,0,0,0,1,0\n\t\t}\n"
		   "\t\tPolygonVertexIndex: *3 {\n\t\t\ta: 0,1,-3\n\t\t}\n\t\tGeometryVersion: 124\n\t}\n"
		   "\tModel: 2, \"Model::Triangle\", \"Mesh\" {\n\t\tVersion: 232\n\t}\n}\n"
		   "Connections: {\n\tC: \"OO\",2,0\n\tC: \"OO\",1,2\n}\n";
}

std::string Setting(const std::string& Name, const std::string& Type, const std::string& Value)
{
	return "\t\tP: \"" + Name + "\", \"" + Type + "\", \"\", \"\"," + Value + "\n";
}

std::string Axes(int Up, int Front, int Coord)
{
	return Setting("UpAxis", "int", std::to_string(Up)) + Setting("UpAxisSign", "int", "1") +
		   Setting("FrontAxis", "int", std::to_string(Front)) + Setting("FrontAxisSign", "int", Up == 2 ? "-1" : "1") +
		   Setting("CoordAxis", "int", std::to_string(Coord)) + Setting("CoordAxisSign", "int", "1");
}

std::vector<FVec3> PositionsOf(const FLoadResult& Result)
{
	return Result.Object ? Result.Object->Mesh.Surfaces.at(0).Positions : std::vector<FVec3>();
}

std::string Told(const FLoadResult& Result)
{
	return Result.Errors.empty() ? "" : Result.Errors[0];
}

} // namespace

TEST_F(ModelUnits, OfAFileWithoutOneAreGuessedFromItsSizeWithAWarningThatNamesTheOption)
{
	const FLoadResult Small = LoadIn(0, Write("small.obj", Obj(2)));
	ASSERT_TRUE(Small.Object) << Told(Small);
	EXPECT_EQ(PositionsOf(Small), (std::vector<FVec3>{{0, 0, 0}, {0, -200, 0}, {0, 0, 200}}));
	ASSERT_EQ(Small.Warnings.size(), 1u);
	EXPECT_NE(Small.Warnings[0].find("read in metres"), std::string::npos) << Small.Warnings[0];
	EXPECT_NE(Small.Warnings[0].find("--unit"), std::string::npos) << Small.Warnings[0];

	const FLoadResult Large = LoadIn(0, Write("large.obj", Obj(17)));
	EXPECT_EQ(PositionsOf(Large), (std::vector<FVec3>{{0, 0, 0}, {0, -17, 0}, {0, 0, 17}}));
}

TEST_F(ModelUnits, OfAFileWithoutOneAreThoseThatWereNamed)
{
	const FLoadResult Result = LoadIn(10, Write("person.obj", Obj(17)));

	ASSERT_TRUE(Result.Object) << Told(Result);
	EXPECT_EQ(PositionsOf(Result), (std::vector<FVec3>{{0, 0, 0}, {0, -170, 0}, {0, 0, 170}}));
	EXPECT_TRUE(Result.Warnings.empty());
}

TEST_F(ModelUnits, ThatAFileStatesHoldWhateverWasNamed)
{
	const std::string File = Write("inch.fbx", Fbx(Axes(1, 2, 0) + Setting("UnitScaleFactor", "double", "2.54")));
	const FLoadResult Result = LoadIn(10, File);

	ASSERT_TRUE(Result.Object) << Told(Result);
	EXPECT_EQ(PositionsOf(Result), (std::vector<FVec3>{{0, 0, 0}, {0, -2.54f, 0}, {0, 0, 2.54f}}));
}

TEST_F(ModelUnits, AndAxesOfAnFbxFileWithZUpAreBroughtToTheEngines)
{
	// X runs across, -Y faces the viewer.
	const std::string File = Write("zup.fbx", Fbx(Axes(2, 1, 0) + Setting("UnitScaleFactor", "double", "100")));
	const FLoadResult Result = LoadIn(0, File);

	ASSERT_TRUE(Result.Object) << Told(Result);
	EXPECT_EQ(PositionsOf(Result), (std::vector<FVec3>{{0, 0, 0}, {0, -100, 0}, {-100, 0, 0}}));
}
