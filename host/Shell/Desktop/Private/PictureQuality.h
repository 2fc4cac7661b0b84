// SPDX-License-Identifier: MIT
/** How finely a view is drawn while it moves, so that it follows the hand, and when it stands. */
#pragma once

#include "Host/SceneRenderer.h"

#include <QSize>

#include <array>

namespace Host
{

/**
 * Chooses the finest of a few qualities that keeps the pace, from what pictures have taken so far. The finest one is
 * always chosen for a view that stands.
 */
class FPictureQuality
{
public:
	/** Of the list of qualities; the finest is the last. */
	static constexpr int Count = 6;
	static constexpr int Finest = Count - 1;

	/** For a view that moves. */
	int ForMotion(const QSize& Pixels) const;
	/** Notes how long a picture of that size took. */
	void Note(int Quality, const QSize& Pixels, double Milliseconds);

	static FRenderOptions OptionsOf(int Quality);
	/** Size of the picture for a view of that many pixels. */
	static QSize SizeOf(int Quality, const QSize& Pixels);

private:
	std::array<double, Count> PerMegapixel{}; // milliseconds; 0: not known
};

} // namespace Host
