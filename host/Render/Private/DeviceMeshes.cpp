// SPDX-License-Identifier: MIT
#include "DeviceMeshes.h"

#include "DeviceTextures.h"
#include "VectorMath.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkTypeInt32Array.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Host
{
namespace
{

/** Wraps `Source` without a copy when it has a tuple for each vertex; otherwise makes an array of zeros. */
template <class TupleType>
vtkSmartPointer<vtkFloatArray> Wrapped(const std::vector<TupleType>& Source, size_t Count, const char* Name)
{
	constexpr int Components = int(sizeof(TupleType) / sizeof(float));
	auto Array = vtkSmartPointer<vtkFloatArray>::New();
	Array->SetNumberOfComponents(Components);
	Array->SetName(Name);
	if (Source.size() == Count && Count > 0)
	{
		float* Data = const_cast<float*>(&Source.front().X);
		Array->SetArray(Data, vtkIdType(Count) * Components, 1);
	}
	else
	{
		Array->SetNumberOfTuples(vtkIdType(Count));
		Array->Fill(0.0);
	}
	return Array;
}

/** The triangles whose three vertices exist. */
vtkSmartPointer<vtkCellArray> Triangles(const FMeshSection& Section, size_t VertexCount)
{
	auto Connectivity = vtkSmartPointer<vtkTypeInt32Array>::New();
	auto Offsets = vtkSmartPointer<vtkTypeInt32Array>::New();
	Connectivity->Allocate(vtkIdType(Section.Indices.size()));
	for (size_t First = 0; First + 2 < Section.Indices.size(); First += 3)
	{
		const uint32_t* Corner = &Section.Indices[First];
		if (Corner[0] < VertexCount && Corner[1] < VertexCount && Corner[2] < VertexCount)
		{
			for (int Index = 0; Index < 3; ++Index)
			{
				Connectivity->InsertNextValue(int32_t(Corner[Index]));
			}
		}
	}
	const vtkIdType Count = Connectivity->GetNumberOfValues() / 3;
	Offsets->SetNumberOfValues(Count + 1);
	for (vtkIdType Index = 0; Index <= Count; ++Index)
	{
		Offsets->SetValue(Index, int32_t(Index * 3));
	}
	auto Cells = vtkSmartPointer<vtkCellArray>::New();
	Cells->SetData(Offsets, Connectivity);
	return Cells;
}

/** Square root of the surface's area over its area in the texture, 0 when either is nothing. */
float CmPerUVOf(const FMeshSnapshot& Mesh, const FMeshSection& Section)
{
	if (Mesh.UVs.size() != Mesh.Positions.size())
	{
		return 0.0f;
	}
	double Area = 0.0, TextureArea = 0.0;
	for (size_t First = 0; First + 2 < Section.Indices.size(); First += 3)
	{
		const uint32_t A = Section.Indices[First], B = Section.Indices[First + 1], C = Section.Indices[First + 2];
		if (std::max({A, B, C}) >= Mesh.Positions.size())
		{
			continue;
		}
		const FFloat3 AB = Mesh.Positions[B] - Mesh.Positions[A], AC = Mesh.Positions[C] - Mesh.Positions[A];
		Area += double(Length(Cross(AB, AC)));
		const FFloat2 &UA = Mesh.UVs[A], &UB = Mesh.UVs[B], &UC = Mesh.UVs[C];
		TextureArea += std::fabs(double(UB.X - UA.X) * double(UC.Y - UA.Y) - double(UC.X - UA.X) * double(UB.Y - UA.Y));
	}
	const double Ratio = TextureArea > 1e-12 ? std::sqrt(Area / TextureArea) : 0.0;
	return std::isfinite(Ratio) ? float(Ratio) : 0.0f;
}

/** False when all corners of the box around the points lie outside the same side of the view. */
bool ReachesInto(const FClipMatrix& View, vtkPolyData& Geometry, const FPlacement& Placement)
{
	double Box[6];
	Geometry.GetPoints()->GetBounds(Box);
	int Outside[6] = {0, 0, 0, 0, 0, 0};
	for (int Corner = 0; Corner < 8; ++Corner)
	{
		const FFloat3 P = Placement.Origin + Placement.AxisX * float(Box[Corner & 1 ? 1 : 0]) +
						  Placement.AxisY * float(Box[Corner & 2 ? 3 : 2]) +
						  Placement.AxisZ * float(Box[Corner & 4 ? 5 : 4]);
		float Clip[4];
		for (size_t Row = 0; Row < 4; ++Row)
		{
			Clip[Row] = View[Row] * P.X + View[Row + 4] * P.Y + View[Row + 8] * P.Z + View[Row + 12];
		}
		for (size_t Axis = 0; Axis < 3; ++Axis)
		{
			Outside[Axis * 2] += Clip[Axis] < -Clip[3];
			Outside[Axis * 2 + 1] += Clip[Axis] > Clip[3];
		}
	}
	return std::find(std::begin(Outside), std::end(Outside), 8) == std::end(Outside);
}

const std::shared_ptr<const FMaterialSnapshot>& DefaultMaterial()
{
	static const std::shared_ptr<const FMaterialSnapshot> Material = []
	{
		auto Made = std::make_shared<FMaterialSnapshot>();
		Made->BaseColor = {0.42f, 0.42f, 0.42f, 1.0f};
		Made->Roughness = 0.65f;
		return Made;
	}();
	return Material;
}

} // namespace

FDeviceMeshes::FMeshEntry& FDeviceMeshes::Find(const std::shared_ptr<const FMeshSnapshot>& Mesh)
{
	FMeshEntry& Entry = Meshes[Mesh.get()];
	Entry.bUsed = true;
	if (Entry.Source)
	{
		return Entry;
	}
	Entry.Source = Mesh;
	const size_t Count = Mesh->Positions.size();
	vtkNew<vtkPoints> Points;
	Points->SetData(Wrapped(Mesh->Positions, Count, "positions"));
	auto Normals = Wrapped(Mesh->Normals, Count, "normalLocal");
	auto Tangents = Wrapped(Mesh->Tangents, Count, "tangentLocal");
	auto UVs = Wrapped(Mesh->UVs, Count, "uvLocal");
	for (const FMeshSection& Section : Mesh->Sections)
	{
		auto Geometry = vtkSmartPointer<vtkPolyData>::New();
		Geometry->SetPoints(Points);
		Geometry->GetPointData()->AddArray(Normals);
		Geometry->GetPointData()->AddArray(Tangents);
		Geometry->GetPointData()->AddArray(UVs);
		Geometry->SetPolys(Triangles(Section, Count));
		Entry.Sections.push_back(Geometry);
		Entry.CmPerUV.push_back(CmPerUVOf(*Mesh, Section));
	}
	return Entry;
}

FDrawnSection FDeviceMeshes::Take(vtkPolyData& Geometry)
{
	const auto [First, Last] = Pool.equal_range(&Geometry);
	for (auto It = First; It != Last; ++It)
	{
		if (!It->second.bUsed)
		{
			It->second.bUsed = true;
			return It->second.Section;
		}
	}
	FPooledSection Made;
	Made.bUsed = true;
	for (vtkSmartPointer<FSurfaceMapper>* Mapper : {&Made.Section.Mapper, &Made.Section.DepthMapper})
	{
		*Mapper = vtkSmartPointer<FSurfaceMapper>::New();
		(*Mapper)->SetInputData(&Geometry);
		(*Mapper)->StaticOn();
	}
	Made.Section.DepthMapper->SetDepthOnly(true);
	Made.Section.Actor = vtkSmartPointer<vtkActor>::New();
	Made.Section.Actor->SetMapper(Made.Section.Mapper);
	Made.Section.Actor->SetPickable(false);
	return Pool.emplace(&Geometry, Made)->second.Section;
}

void FDeviceMeshes::Show(
	const FSceneSnapshot& Scene, const FFrameState& Frame, FDeviceTextures& Textures, vtkRenderer& Renderer)
{
	auto& Window = *vtkOpenGLRenderWindow::SafeDownCast(Renderer.GetRenderWindow());
	Renderer.RemoveAllViewProps();
	Sections.clear();
	for (const FObjectSnapshot& Object : Scene.Objects)
	{
		if (!Object.Mesh || Object.Mesh->Positions.empty())
		{
			continue;
		}
		const FMeshEntry& Entry = Find(Object.Mesh);
		for (size_t Index = 0; Index < Entry.Sections.size(); ++Index)
		{
			vtkPolyData& Geometry = *Entry.Sections[Index];
			if (Geometry.GetNumberOfPolys() == 0)
			{
				continue;
			}
			const int32_t Slot = Object.Mesh->Sections[Index].MaterialIndex;
			const bool bKnown = Slot >= 0 && size_t(Slot) < Object.Materials.size() && Object.Materials[size_t(Slot)];
			const std::shared_ptr<const FMaterialSnapshot>& Material =
				bKnown ? Object.Materials[size_t(Slot)] : DefaultMaterial();
			FMaterialTextures Maps{};
			for (size_t Channel = 0; Channel < Maps.size(); ++Channel)
			{
				Maps[Channel] = Textures.Find(Window, Material->Maps[Channel].Texture);
			}
			FDrawnSection Section = Take(Geometry);
			Section.bTranslucent = Material->Blend == EBlend::Translucent;
			Section.bSelected = Object.bSelected;
			Section.Placement = Object.Placement;
			for (FSurfaceMapper* Mapper : {Section.Mapper.Get(), Section.DepthMapper.Get()})
			{
				Mapper->SetFrame(&Frame);
				Mapper->SetMaterial(Material, Maps);
				Mapper->SetPlacement(Object.Placement);
				Mapper->SetCmPerUV(Entry.CmPerUV[Index]);
			}
			Section.Actor->SetForceTranslucent(Section.bTranslucent);
			Section.Actor->SetForceOpaque(!Section.bTranslucent);
			Renderer.AddActor(Section.Actor);
			Sections.push_back(Section);
		}
	}
	// What this scene no longer shows leaves the device.
	for (auto It = Pool.begin(); It != Pool.end();)
	{
		if (It->second.bUsed)
		{
			It->second.bUsed = false;
			++It;
			continue;
		}
		It->second.Section.Mapper->ReleaseGraphicsResources(&Window);
		It->second.Section.DepthMapper->ReleaseGraphicsResources(&Window);
		It = Pool.erase(It);
	}
	for (auto It = Meshes.begin(); It != Meshes.end();)
	{
		const bool bUsed = It->second.bUsed;
		It->second.bUsed = false;
		It = bUsed ? std::next(It) : Meshes.erase(It);
	}
	Textures.DropUnused();
}

bool FDeviceMeshes::HasTranslucentIn(const FClipMatrix& View) const
{
	for (const FDrawnSection& Section : Sections)
	{
		if (Section.bTranslucent && ReachesInto(View, *Section.Mapper->GetInput(), Section.Placement))
		{
			return true;
		}
	}
	return false;
}

bool FDeviceMeshes::HasSelected() const
{
	return std::any_of(
		Sections.begin(), Sections.end(), [](const FDrawnSection& Section) { return Section.bSelected; });
}

void FDeviceMeshes::Clear(vtkRenderer& Renderer)
{
	Renderer.RemoveAllViewProps();
	Sections.clear();
	for (auto& [Geometry, Pooled] : Pool)
	{
		Pooled.Section.Mapper->ReleaseGraphicsResources(Renderer.GetRenderWindow());
		Pooled.Section.DepthMapper->ReleaseGraphicsResources(Renderer.GetRenderWindow());
	}
	Pool.clear();
	Meshes.clear();
}

} // namespace Host
