// SPDX-License-Identifier: MIT
#include "DeviceTextures.h"

#include "OpenGL.h"

#include <vtkOpenGLRenderWindow.h>

namespace Host
{
namespace
{

vtkSmartPointer<vtkTextureObject> Upload(vtkOpenGLRenderWindow& Window, const FTextureSnapshot& Texture)
{
	const bool bWide = Texture.Layout == ETextureLayout::Rgba16;
	auto Object = vtkSmartPointer<vtkTextureObject>::New();
	Object->SetContext(&Window);
	if (Texture.Width > vtkTextureObject::GetMaximumTextureSize(&Window) ||
		Texture.Height > vtkTextureObject::GetMaximumTextureSize(&Window))
	{
		return nullptr;
	}
	Object->SetWrapS(vtkTextureObject::Repeat);
	Object->SetWrapT(vtkTextureObject::Repeat);
	Object->SetMagnificationFilter(vtkTextureObject::Linear);
	Object->SetMinificationFilter(vtkTextureObject::LinearMipmapLinear);
	// The library neither makes the smaller pictures nor, left alone, lets them be read.
	constexpr int AllLevels = 16;
	Object->SetMaxLevel(AllLevels);
	// Sixteen bits stay sixteen bits on the device. The sRGB curve is taken off in the program, since the same picture
	// may serve as a colour and as data.
	Object->SetInternalFormat(bWide ? GL_RGBA16 : GL_RGBA8);
	Object->SetFormat(bWide ? GL_RGBA : GL_BGRA);
	Object->SetDataType(bWide ? GL_UNSIGNED_SHORT : GL_UNSIGNED_BYTE);
	const int Type = bWide ? VTK_UNSIGNED_SHORT : VTK_UNSIGNED_CHAR;
	void* Pixels = const_cast<uint8_t*>(Texture.Pixels.get());
	const bool bMade = Object->Create2DFromRaw(unsigned(Texture.Width), unsigned(Texture.Height), 4, Type, Pixels);
	if (!bMade)
	{
		return nullptr;
	}
	Object->Bind();
	glGenerateMipmap(GL_TEXTURE_2D);
	return Object;
}

} // namespace

vtkTextureObject* FDeviceTextures::Find(
	vtkOpenGLRenderWindow& Window, const std::shared_ptr<const FTextureSnapshot>& Texture)
{
	if (!Texture || !Texture->Pixels || Texture->Width <= 0 || Texture->Height <= 0)
	{
		return nullptr;
	}
	FEntry& Entry = Entries[Texture.get()];
	if (!Entry.Source)
	{
		Entry.Source = Texture;
		Entry.Object = Upload(Window, *Texture);
	}
	Entry.bUsed = true;
	return Entry.Object;
}

void FDeviceTextures::DropUnused()
{
	for (auto It = Entries.begin(); It != Entries.end();)
	{
		It = It->second.bUsed ? std::next(It) : Entries.erase(It);
	}
	for (auto& [Key, Entry] : Entries)
	{
		Entry.bUsed = false;
	}
}

void FDeviceTextures::ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window)
{
	for (auto& [Key, Entry] : Entries)
	{
		if (Entry.Object)
		{
			Entry.Object->ReleaseGraphicsResources(&Window);
		}
	}
	Entries.clear();
}

} // namespace Host
