// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenPasses.h"

#include <functional>

namespace Host
{

/** A line around the objects that are selected, also where others stand in front of them. */
class FSelectionOutline
{
public:
	/**
	 * Draws the line over the picture that is bound for drawing.
	 *
	 * @param DrawSelected  draws the depths of what is selected into the target that is bound
	 * @param Width, Height pixels of that picture
	 * @param Thickness     of the line in such pixels
	 * @return false when the device refuses
	 */
	bool Draw(vtkOpenGLRenderWindow& Window, const std::function<void()>& DrawSelected, int Width, int Height,
		float Thickness, const FFloat3& Color);
	void ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window);

private:
	FPassTarget Target{FPassTarget::EKind::Depth};
	FScreenProgram Program;
};

} // namespace Host
