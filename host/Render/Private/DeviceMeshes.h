// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneCamera.h"
#include "SurfaceMapper.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>

#include <map>
#include <memory>
#include <vector>

class vtkPolyData;
class vtkRenderer;

namespace Host
{

class FDeviceTextures;

/** One slot of one object, ready to be drawn. */
struct FDrawnSection
{
	vtkSmartPointer<FSurfaceMapper> Mapper;
	vtkSmartPointer<FSurfaceMapper> DepthMapper;
	vtkSmartPointer<vtkActor> Actor;
	bool bTranslucent = false;
	bool bSelected = false;
	FPlacement Placement;
};

/**
 * The scene's objects as actors of a renderer. The arrays of a mesh are handed over without a copy and stay on the
 * device while scenes go on showing the same mesh.
 */
class FDeviceMeshes
{
public:
	/** Makes the renderer show the scene's objects. The context must be current. */
	void Show(const FSceneSnapshot& Scene, const FFrameState& Frame, FDeviceTextures& Textures, vtkRenderer& Renderer);

	/** What is shown, in the scene's order; sections without triangles are left out. */
	const std::vector<FDrawnSection>& Drawn() const { return Sections; }
	/** Whether the box around anything translucent reaches into the view. */
	bool HasTranslucentIn(const FClipMatrix& View) const;
	bool HasSelected() const;

	void Clear(vtkRenderer& Renderer);

private:
	struct FMeshEntry
	{
		std::shared_ptr<const FMeshSnapshot> Source; // kept: its arrays are wrapped, its address is the key
		std::vector<vtkSmartPointer<vtkPolyData>> Sections;
		std::vector<float> CmPerUV;
		bool bUsed = false;
	};

	/** A section's mapper, kept between pictures; an object drawn twice has two. */
	struct FPooledSection
	{
		FDrawnSection Section;
		bool bUsed = false;
	};

	FMeshEntry& Find(const std::shared_ptr<const FMeshSnapshot>& Mesh);
	FDrawnSection Take(vtkPolyData& Geometry);

	std::map<const FMeshSnapshot*, FMeshEntry> Meshes;
	std::multimap<vtkPolyData*, FPooledSection> Pool;
	std::vector<FDrawnSection> Sections;
};

} // namespace Host
