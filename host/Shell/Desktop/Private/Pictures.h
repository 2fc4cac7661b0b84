// SPDX-License-Identifier: MIT
/** The pictures of all viewports: what the model draws, captured, drawn on threads and handed to whoever shows it. */
#pragma once

#include "Host/BoundsMemory.h"
#include "Host/SceneCapture.h"
#include "Host/ViewPainter.h"
#include "PictureQuality.h"
#include "PictureThread.h"

#include <QElapsedTimer>

#include <map>

class FSceneViewport;

namespace Host
{

/** How pictures came about, for measurements. */
struct FPictureReport
{
	std::uint64_t Finished = 0;
	/** Of the latest picture. */
	double Milliseconds = 0;
	int Quality = 0;
};

/**
 * The view painter of the desktop. A view is drawn coarsely while it moves and finely when it has stood for a moment;
 * the model is captured on its own thread, and nothing of it is touched by the drawing.
 */
class FPictures : public IViewPainter
{
public:
	/** @param InWake  asks for a frame; from any thread */
	explicit FPictures(std::function<void()> InWake);
	virtual ~FPictures() override;

	virtual void Paint(FViewport& Viewport, const FSceneView& View, const FViewDrawing& Drawing) override;

	/** False for a viewport that was not painted yet, or has not been asked for in a while. */
	bool Knows(const FViewport& Viewport) const { return Find(Viewport) != nullptr; }
	/** The latest picture of a viewport; null before the first. */
	const QImage& ImageOf(const FViewport& Viewport) const;
	/** Why there is none, as one line; empty when all is well. */
	const QString& ErrorOf(const FViewport& Viewport) const;
	/** Rises with each new picture or error of the viewport. */
	std::uint64_t VersionOf(const FViewport& Viewport) const;
	FPictureReport ReportOf(const FViewport& Viewport) const;

	/**
	 * Takes what was finished and orders what is due. Once a frame.
	 *
	 * @return true while a view waits for its fine picture
	 */
	bool Advance();
	/** There are pictures, all of them as fine as they get, and none is being drawn. */
	bool IsStill() const;
	/** Forgets viewports for which nobody has asked since the call before. */
	void DropUnused();

	/** Draws fine pictures only, for measurements and picture files. */
	void SetAlwaysFinest(bool bInAlwaysFinest) { bAlwaysFinest = bInAlwaysFinest; }

private:
	struct FEntry;

	FEntry* Find(const FViewport& Viewport) const;
	void Order(FEntry& Entry, int Quality);

	const std::function<void()> Wake;
	std::map<const FViewport*, std::unique_ptr<FEntry>> Entries;
	IViewPainter* const Former;
	bool bAlwaysFinest = false;
};

} // namespace Host
