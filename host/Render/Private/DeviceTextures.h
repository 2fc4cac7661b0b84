// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneSnapshot.h"

#include <vtkSmartPointer.h>
#include <vtkTextureObject.h>

#include <map>
#include <memory>

class vtkOpenGLRenderWindow;

namespace Host
{

/** Textures on the device, known by the address of their snapshot. The context must be current in every call. */
class FDeviceTextures
{
public:
	/**
	 * Uploads a texture unless it is there, and marks it as used in this picture.
	 * @return the texture, owned by this; null when the snapshot is null, empty or larger than the device takes
	 */
	vtkTextureObject* Find(vtkOpenGLRenderWindow& Window, const std::shared_ptr<const FTextureSnapshot>& Texture);

	/** Drops what no Find of this picture asked for, and begins the next. */
	void DropUnused();
	void ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window);

private:
	struct FEntry
	{
		std::shared_ptr<const FTextureSnapshot> Source; // kept: its address is the key
		vtkSmartPointer<vtkTextureObject> Object;
		bool bUsed = false;
	};
	std::map<const FTextureSnapshot*, FEntry> Entries;
};

} // namespace Host
