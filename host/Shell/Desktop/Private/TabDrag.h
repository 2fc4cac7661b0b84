// SPDX-License-Identifier: MIT
/** A tab under way with the pointer. */
#pragma once

#include "Host/Docking.h"

#include <QPointer>
#include <QWidget>

namespace Host
{

class FViewWorld;

/** Where a tab would go. */
struct FDropPlace
{
	TWeakPtr<SDockNode> Node;
	EDockPlace Place = EDockPlace::Into;
	int32 Index = INDEX_NONE;
	/** What it would cover, and of which window; on the desktop. */
	QRect Area;
	QPointer<QWidget> Window;

	bool IsSet() const { return Node.IsValid(); }
};

/**
 * Shows the tab beside the pointer and the place that it would take. Nothing is changed before Drop; the tab, its
 * window and the target may go while it lasts.
 */
class FTabDragView
{
public:
	FTabDragView(FViewWorld& InWorld, const TSharedRef<SDockTab>& Tab, const QString& Label);
	~FTabDragView();

	/** @param Pointer  on the desktop */
	void MoveTo(const QPoint& Pointer);
	/** Docks the tab, or gives it a window of its own where nothing takes it. */
	void Drop(const QPoint& Pointer);

private:
	FDropPlace Find(const QPoint& Pointer) const;

	FViewWorld& World;
	FTabDrag Drag;
	QPointer<QWidget> Ghost;
	QPointer<QWidget> Marker;
};

} // namespace Host
