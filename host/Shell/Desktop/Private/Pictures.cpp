// SPDX-License-Identifier: MIT
#include "Pictures.h"

#include "Components/PrimitiveComponent.h"
#include "Engine/World.h"
#include "Host/Scene.h"
#include "Host/SceneCamera.h"
#include "Host/ViewLook.h"
#include "SceneInterface.h"
#include "SceneView.h"
#include "UnrealClient.h"

#include <algorithm>
#include <utility>

namespace Host
{

namespace
{

/** A view that has stood for so long is drawn finely. */
constexpr qint64 RestMilliseconds = 140;

constexpr float SmallestFloor = 1200.0f; // cm, radius

const QImage NoImage;
const QString NoText;

} // namespace

struct FPictures::FEntry
{
	explicit FEntry(const std::function<void()>& Wake)
		: Thread(Wake)
	{
	}

	FSceneCapture Capture;
	FBoundsMemory Bounds;
	FSceneSnapshot Scene;	// as it was painted last
	FRenderOptions Allowed; // what the view's show flags leave on
	QSize Pixels;
	QElapsedTimer SincePaint;
	bool bFineIsDue = false;
	bool bOrdered = false; // since the latest picture was taken
	FPictureQuality Quality;
	QImage Image;
	QString Error;
	std::uint64_t Version = 0;
	FPictureReport Report;
	bool bUsed = true;
	FPictureThread Thread;
};

FPictures::FPictures(std::function<void()> InWake)
	: Wake(std::move(InWake))
	, Former(SetViewPainter(this))
{
}

FPictures::~FPictures()
{
	SetViewPainter(Former);
}

FPictures::FEntry* FPictures::Find(const FViewport& Viewport) const
{
	const auto Found = Entries.find(&Viewport);
	return Found != Entries.end() ? Found->second.get() : nullptr;
}

void FPictures::Paint(FViewport& Viewport, const FSceneView& View, const FViewDrawing& Drawing)
{
	const FIntPoint Size = Viewport.GetSizeXY();
	const UWorld* const World = View.Family && View.Family->Scene ? View.Family->Scene->GetWorld() : nullptr;
	if (!World || Size.X < 1 || Size.Y < 1)
	{
		return;
	}
	std::unique_ptr<FEntry>& Entry = Entries[&Viewport];
	if (!Entry)
	{
		Entry = std::make_unique<FEntry>(Wake);
	}
	Entry->bUsed = true;
	Entry->Pixels = QSize(Size.X, Size.Y);
	FSceneSnapshot Scene = Entry->Capture.Capture(*World);
	const FSceneBounds Bounds = Entry->Bounds.Of(Scene.Objects);
	LookThrough(Scene, View, Bounds);
	Entry->Allowed = OptionsFor(View, FRenderOptions());
	// An empty scene, or a small one, stands on a floor that reaches as far as one looks.
	Scene.Surroundings.FloorRadius = std::max(Scene.Surroundings.FloorRadius, SmallestFloor);
	Scene.Surroundings.bGrid = Drawing.Grid.IsSet();
	if (Drawing.Grid.IsSet())
	{
		Scene.Surroundings.GridSpacing = static_cast<float>(Drawing.Grid->CellSize());
		Scene.Surroundings.GridHalfSize = static_cast<float>(Drawing.Grid->HalfSize);
	}
	Entry->Scene = std::move(Scene);
	Entry->SincePaint.start();
	const int Quality = bAlwaysFinest ? FPictureQuality::Finest : Entry->Quality.ForMotion(Entry->Pixels);
	Entry->bFineIsDue = Quality != FPictureQuality::Finest;
	Order(*Entry, Quality);
}

void FPictures::Order(FEntry& Entry, int Quality)
{
	FPictureOrder Order;
	Order.Scene = Entry.Scene;
	const QSize Size = FPictureQuality::SizeOf(Quality, Entry.Pixels);
	Order.Width = Size.width();
	Order.Height = Size.height();
	Order.Options = FPictureQuality::OptionsOf(Quality);
	Order.Options.bShadows = Order.Options.bShadows && Entry.Allowed.bShadows;
	Order.Options.bAmbientOcclusion = Order.Options.bAmbientOcclusion && Entry.Allowed.bAmbientOcclusion;
	Order.Options.bBackdrop = Entry.Allowed.bBackdrop;
	Order.Quality = Quality;
	Entry.bOrdered = true;
	Entry.Thread.Order(std::move(Order));
}

bool FPictures::Advance()
{
	bool bWaits = false;
	for (const auto& [Viewport, Entry] : Entries)
	{
		if (std::optional<FFinishedPicture> Picture = Entry->Thread.Take())
		{
			Entry->Error = QString::fromStdString(Picture->Error);
			if (Picture->Error.empty())
			{
				Entry->Quality.Note(Picture->Quality, Entry->Pixels, Picture->Milliseconds);
				Entry->Image = std::move(Picture->Image);
			}
			Entry->bOrdered = Entry->Thread.IsBusy();
			++Entry->Version;
			Entry->Report = {Entry->Report.Finished + 1, Picture->Milliseconds, Picture->Quality};
		}
		if (Entry->bFineIsDue && Entry->SincePaint.elapsed() >= RestMilliseconds && !Entry->Thread.IsBusy())
		{
			Entry->bFineIsDue = false;
			Order(*Entry, FPictureQuality::Finest);
		}
		bWaits = bWaits || Entry->bFineIsDue;
	}
	return bWaits;
}

bool FPictures::IsStill() const
{
	return !Entries.empty() && std::all_of(Entries.begin(), Entries.end(),
								   [](const auto& Item)
								   {
									   const FEntry& Entry = *Item.second;
									   return !Entry.bFineIsDue && !Entry.Thread.IsBusy() && !Entry.bOrdered;
								   });
}

void FPictures::DropUnused()
{
	std::erase_if(Entries, [](const auto& Item) { return !std::exchange(Item.second->bUsed, false); });
}

const QImage& FPictures::ImageOf(const FViewport& Viewport) const
{
	FEntry* const Entry = Find(Viewport);
	if (Entry)
	{
		Entry->bUsed = true;
	}
	return Entry ? Entry->Image : NoImage;
}

const QString& FPictures::ErrorOf(const FViewport& Viewport) const
{
	const FEntry* const Entry = Find(Viewport);
	return Entry ? Entry->Error : NoText;
}

std::uint64_t FPictures::VersionOf(const FViewport& Viewport) const
{
	FEntry* const Entry = Find(Viewport);
	if (Entry)
	{
		Entry->bUsed = true;
	}
	return Entry ? Entry->Version : 0;
}

FPictureReport FPictures::ReportOf(const FViewport& Viewport) const
{
	const FEntry* const Entry = Find(Viewport);
	return Entry ? Entry->Report : FPictureReport();
}

} // namespace Host
