// SPDX-License-Identifier: MIT
#pragma once

// The place that a widget gives one child.

#include "CoreMinimal.h"

class SWidget;

/** Holds one child, the null widget at first, and tells the child who its parent is. */
class FSlotBase
{
public:
	FSlotBase() = default;
	virtual ~FSlotBase();

	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;

	/** Must be called before the first child comes. Not owned; it outlives its slots. */
	void SetOwner(SWidget& InOwner) { Owner = &InOwner; }

	/** Replaces the child. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);
	/** The child, or the null widget. */
	TSharedRef<SWidget> GetWidget() const;
	/** Takes the child out; empty when there was none. */
	TSharedPtr<SWidget> DetachWidget();

	/** The children of that widget changed. */
	static void TellOwner(SWidget& Owner);

private:
	SWidget* Owner = nullptr;
	TSharedPtr<SWidget> Widget;
};
