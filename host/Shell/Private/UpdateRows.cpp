// SPDX-License-Identifier: MIT
#include "UpdateRows.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "Containers/StringConv.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor/ZEFTandemEditor.h"
#include "Engine/SkeletalMesh.h"
#include "Host/MaterialEvaluation.h"
#include "Rendering/SkeletalMeshLODRenderData.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "Zef/Statistics.h"

#include <set>
#include <utility>

namespace Host
{

namespace
{

constexpr std::pair<int, const char*> ObjectTypes[] = {{2, "Garment"}, {4, "Avatar"}, {8, "Outfit"}, {16, "Prop"}};

double ReceiveMilliseconds(int ObjectType)
{
	double Milliseconds = 0;
	for (const Zef::FReceiveReport& Report : Zef::ReceiveReports("Tandem"))
	{
		if (Report.Item == Zef::EItem::SurfaceMesh && static_cast<int>(Report.ObjectType) == ObjectType)
		{
			Milliseconds = Report.Milliseconds; // the latest counts
		}
	}
	return Milliseconds;
}

void CountGeometry(UPrimitiveComponent* Component, FUpdateRow& Row)
{
	if (const UDynamicMeshComponent* const Dynamic = Cast<UDynamicMeshComponent>(Component))
	{
		Row.Triangles = Dynamic->GetMesh()->TriangleCount();
		Row.Vertices = Dynamic->GetMesh()->VertexCount();
	}
	else if (const USkeletalMeshComponent* const Skeletal = Cast<USkeletalMeshComponent>(Component))
	{
		const FSkeletalMeshLODRenderData& LOD =
			Skeletal->GetSkeletalMeshAsset()->GetResourceForRendering()->LODRenderData[0];
		Row.Vertices = LOD.GetNumVertices();
		for (const FSkelMeshRenderSection& Section : LOD.RenderSections)
		{
			Row.Triangles += Section.NumTriangles;
		}
	}
}

void CountMaterials(const UPrimitiveComponent* Component, FUpdateRow& Row)
{
	std::set<const UTexture2D*> Textures;
	Row.MaterialSlots = Component->GetNumMaterials();
	for (int32 Slot = 0; Slot < Row.MaterialSlots; ++Slot)
	{
		if (const UMaterialInterface* const Material = Component->GetMaterial(Slot))
		{
			for (const FEvaluatedMap& Map : EvaluateMaterial(Material).Maps)
			{
				if (Map.IsUsed())
				{
					Textures.insert(Map.Texture);
				}
			}
		}
	}
	Row.Textures = static_cast<std::int32_t>(Textures.size());
}

} // namespace

std::vector<FUpdateRow> CollectUpdateRows(
	const FZEFTandemEditor& Editor, const std::map<int, double>& ConvertMilliseconds)
{
	std::vector<FUpdateRow> Rows;
	for (const auto& [Type, Name] : ObjectTypes)
	{
		for (UPrimitiveComponent* const Component : Editor.GetObjectComponents(Type))
		{
			FUpdateRow& Row = Rows.emplace_back();
			Row.Object = TCHAR_TO_UTF8(*Component->GetName());
			Row.Kind = Name;
			Row.ComponentClass = TCHAR_TO_UTF8(*Component->GetClass()->GetName());
			CountGeometry(Component, Row);
			CountMaterials(Component, Row);
			Row.ReceiveMilliseconds = ReceiveMilliseconds(Type);
			const auto Converted = ConvertMilliseconds.find(Type);
			Row.ConvertMilliseconds = Converted != ConvertMilliseconds.end() ? Converted->second : 0;
		}
	}
	return Rows;
}

} // namespace Host
