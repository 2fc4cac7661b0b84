// SPDX-License-Identifier: MIT
/** What all views share: how they are made, icons, and a place for natives that must not die at once. */
#pragma once

#include "Brushes.h"
#include "WidgetView.h"

#include <functional>
#include <utility>

namespace Host
{

class FMenuContent;
class FPictures;

class FViewWorld
{
public:
	explicit FViewWorld(std::function<void()> InWake);
	~FViewWorld();
	FViewWorld(const FViewWorld&) = delete;
	FViewWorld& operator=(const FViewWorld&) = delete;

	/** The view for that kind of widget; never null. */
	std::unique_ptr<FWidgetView> Make(const TSharedRef<SWidget>& Widget);

	/**
	 * Hides a native widget for good. It may be the one whose event is being handled, so it goes at the next
	 * ClearGraveyard.
	 */
	void Bury(QWidget* Native);
	/** Deletes what was buried. Call it where no native widget is at work. */
	void ClearGraveyard();

	/** Asks for a frame soon. From any thread. */
	void Wake() const { WakeFrame(); }
	/** Calls the function between two frames, when no question waits for its answer; open questions are dismissed. */
	void AskLater(std::function<void()> Call);
	/** What AskLater was given, once. */
	std::vector<std::function<void()>> TakeAsked() { return std::exchange(Asked, {}); }
	bool HasAsked() const { return !Asked.empty(); }

	/** The nearest view at or above a native widget; null when there is none. */
	FWidgetView* ViewAt(QWidget* Native) const;
	/** The view of a widget of the model; null when it is not drawn. */
	FWidgetView* ViewOf(const SWidget& Model) const;
	void Register(FWidgetView& View, QWidget* Native);
	void Unregister(FWidgetView& View);

	FBrushes Brushes;
	/** Pictures of the viewports, which outlive their views. */
	std::unique_ptr<FPictures> Pictures;
	/** The native menus that are filled from the model, open or not; each takes itself out. */
	std::vector<FMenuContent*> OpenContents;

private:
	std::function<void()> WakeFrame;
	std::vector<std::function<void()>> Asked;
	std::vector<QPointer<QWidget>> Graveyard;
	QHash<const QWidget*, FWidgetView*> ViewsByNative;
};

} // namespace Host
