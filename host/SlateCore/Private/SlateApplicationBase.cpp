// SPDX-License-Identifier: MIT

#include "Application/SlateApplicationBase.h"

#include "Host/Rendering.h"
#include "Rendering/SlateRenderer.h"

namespace
{
uint64 ReloadCount = 0;
} // namespace

TSharedPtr<FSlateApplicationBase> FSlateApplicationBase::CurrentBaseApplication;

FSlateApplicationBase::FSlateApplicationBase()
	: Renderer(MakeShared<FSlateRenderer>())
{
}

FSlateApplicationBase::~FSlateApplicationBase() = default;

FSlateApplicationBase& FSlateApplicationBase::Get()
{
	checkf(CurrentBaseApplication.IsValid(), TEXT("There is no application: FSlateApplication::Create makes it"));
	return *CurrentBaseApplication;
}

void FSlateRenderer::ReloadTextureResources()
{
	++ReloadCount;
}

uint64 Host::TextureReloadCount()
{
	return ReloadCount;
}
