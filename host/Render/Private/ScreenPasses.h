// SPDX-License-Identifier: MIT
#pragma once

#include "FrameState.h"

#include <vtkNew.h>
#include <vtkOpenGLFramebufferObject.h>
#include <vtkOpenGLQuadHelper.h>
#include <vtkProp.h>
#include <vtkSmartPointer.h>
#include <vtkTextureObject.h>

#include <memory>

class vtkOpenGLRenderWindow;

namespace Host
{

/** A full-screen picture of depths or values, drawn into by a pass and read by the next. Made anew when its size
 * changes. */
class FPassTarget
{
public:
	enum class EKind
	{
		Depth,
		Value
	};

	explicit FPassTarget(EKind InKind)
		: Kind(InKind)
	{
	}

	/** Directs drawing into the target, cleared, until End. @return false when the device refuses the size */
	bool Begin(vtkOpenGLRenderWindow& Window, int Width, int Height);
	void End(vtkOpenGLRenderWindow& Window);
	void ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window);

	vtkTextureObject* Texture() const { return Object; }

private:
	EKind Kind;
	vtkSmartPointer<vtkTextureObject> Object;
	vtkSmartPointer<vtkOpenGLFramebufferObject> Buffer;
	int LastWidth = 0, LastHeight = 0;
};

/** A program that runs once for each pixel. */
class FScreenProgram
{
public:
	/** Makes the program current. @return it, or null when the device does not compile it */
	vtkShaderProgram* Ready(vtkOpenGLRenderWindow& Window, const std::string& Fragment);
	void Draw() { Quad->Render(); }
	void ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window);

private:
	std::unique_ptr<vtkOpenGLQuadHelper> Quad;
};

/** Backdrop and floor as the first thing that the renderer draws. */
class FBackdrop : public vtkProp
{
public:
	static FBackdrop* New();
	vtkTypeMacro(FBackdrop, vtkProp);

	/** @param Aspect  width by height of the picture */
	void Set(
		const FFrameState* InFrame, const FSurroundings& InSurroundings, const FCameraSnapshot& InCamera, float Aspect);
	int RenderOpaqueGeometry(vtkViewport* Viewport) override;
	/** Only the floor's depths, into the target that is bound. */
	void DrawDepth(vtkOpenGLRenderWindow& Window);
	void ReleaseGraphicsResources(vtkWindow* Window) override;

private:
	void Draw(vtkOpenGLRenderWindow& Window, bool bDepthOnly);

	const FFrameState* Frame = nullptr;
	FSurroundings Surroundings;
	FFloat3 Forward, Right, Up;
	FScreenProgram Program;
};

} // namespace Host
