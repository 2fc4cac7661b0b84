// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Host/MaterialDeclaration.h"
#include "MaterialDomain.h"
#include "MaterialEditingLibrary.h"
#include "Materials/Material.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace
{
using MaterialEditingLibrary = FEngineFixture;
} // namespace

TEST_F(MaterialEditingLibrary, GivesEachNodeAPlaceOfItsOwn)
{
	UMaterial* Material = DuplicateObject<UMaterial>(
		UMaterial::GetDefaultMaterial(MD_Surface), GetTransientPackage(), TEXT("TempMaterial"));
	Host::FMaterialDeclaration& Declaration = Host::EditMaterialDeclaration(*Material);
	for (int32 Node = 0; Node < 20; ++Node)
	{
		Host::FDeclaredScalar Scalar;
		Scalar.Name = FName(*FString::Printf(TEXT("Scalar%d"), Node));
		Scalar.Default = 0.0f;
		Declaration.Scalars.Add(Scalar);
	}
	UMaterialEditingLibrary::LayoutMaterialExpressions(Material);

	std::set<std::pair<int32, int32>> Places;
	int32 NumNodes = 0;
	for (const Host::FDeclaredScalar& Scalar : Host::GetMaterialDeclaration(*Material).Scalars)
	{
		Places.insert({Scalar.EditorX, Scalar.EditorY});
		++NumNodes;
	}
	for (const Host::FDeclaredVector& Vector : Host::GetMaterialDeclaration(*Material).Vectors)
	{
		Places.insert({Vector.EditorX, Vector.EditorY});
		++NumNodes;
	}
	EXPECT_EQ(NumNodes, 25);
	EXPECT_EQ(Places.size(), 25u);
	const Host::FMaterialDeclaration& Original =
		Host::GetMaterialDeclaration(*UMaterial::GetDefaultMaterial(MD_Surface));
	EXPECT_EQ(Original.Scalars[0].EditorX, 0) << "the material that it was copied from keeps its places";
}

TEST_F(MaterialEditingLibrary, TakesNoMaterialForAnEmptyOne)
{
	UMaterialEditingLibrary::LayoutMaterialExpressions(nullptr);
	UMaterial* Material = NewObject<UMaterial>(GetTransientPackage());
	UMaterialEditingLibrary::LayoutMaterialExpressions(Material);
	EXPECT_EQ(Host::GetMaterialDeclaration(*Material).Scalars.Num(), 0);
}
