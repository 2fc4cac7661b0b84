// SPDX-License-Identifier: MIT
#include "MaterialEditingLibrary.h"

#include "Host/MaterialDeclaration.h"
#include "Materials/Material.h"

namespace
{
/** Pixels from one node to the next; a node with a long name is about as wide. */
constexpr int32 ColumnWidth = 300;
constexpr int32 RowHeight = 120;
constexpr int32 NodesPerColumn = 10;

/** Hands out places column by column, the first column next to the result on its left. */
class FNodeGrid
{
public:
	template <typename ParameterType>
	void Place(TArray<ParameterType>& Nodes)
	{
		for (ParameterType& Node : Nodes)
		{
			Node.EditorX = -ColumnWidth * (1 + NumPlaced / NodesPerColumn);
			Node.EditorY = RowHeight * (NumPlaced % NodesPerColumn);
			++NumPlaced;
		}
	}

private:
	int32 NumPlaced = 0;
};
} // namespace

void UMaterialEditingLibrary::LayoutMaterialExpressions(UMaterial* Material)
{
	if (!Material)
	{
		return;
	}
	Host::FMaterialDeclaration& Declaration = Host::EditMaterialDeclaration(*Material);
	FNodeGrid Grid;
	Grid.Place(Declaration.Vectors);
	Grid.Place(Declaration.Scalars);
	Grid.Place(Declaration.Textures);
	Grid.Place(Declaration.Switches);
}
