// SPDX-License-Identifier: MIT
#pragma once

// A notification: what it says, how long it stands, and its state.

#include "Styling/SlateBrush.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SWindow.h"

/** A button in a notification. */
struct FNotificationButtonInfo
{
	FNotificationButtonInfo(const FText& InText, const FText& InToolTip, const FSimpleDelegate& InCallback)
		: Text(InText)
		, ToolTip(InToolTip)
		, Callback(InCallback)
	{
	}

	FText Text;
	FText ToolTip;
	FSimpleDelegate Callback;
};

/** What a notification is made of. Durations are seconds. */
struct FNotificationInfo
{
	explicit FNotificationInfo(const FText& InText)
		: Text(InText)
	{
	}

	TAttribute<FText> Text;
	TArray<FNotificationButtonInfo> ButtonDetails;
	/** Not owned; null for the default of the completion state. */
	const FSlateBrush* Image = nullptr;
	float FadeInDuration = 0.5f;
	float FadeOutDuration = 2.0f;
	/** How long it stands before it fades out. */
	float ExpireDuration = 1.0f;
	bool bUseThrobber = true;
	bool bUseSuccessFailIcons = true;
	bool bUseLargeFont = true;
	/** It expires by itself; else it stays until it is told to go. */
	bool bFireAndForget = true;
	/** The window that it belongs to; empty for the root window. */
	TSharedPtr<SWindow> ForWindow;
};

/** One notification on the screen. */
class SNotificationItem : public SCompoundWidget
{
public:
	enum ECompletionState
	{
		CS_None,
		CS_Pending,
		CS_Success,
		CS_Fail,
	};

	SLATE_BEGIN_ARGS(SNotificationItem) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FNotificationInfo& InInfo);

	FText GetText() const { return Info.Text.Get(); }
	void SetText(const TAttribute<FText>& InText) { Info.Text = InText; }
	ECompletionState GetCompletionState() const { return CompletionState; }
	void SetCompletionState(ECompletionState State) { CompletionState = State; }
	void SetExpireDuration(float ExpireDuration) { Info.ExpireDuration = ExpireDuration; }
	void SetFadeOutDuration(float Duration) { Info.FadeOutDuration = Duration; }

	/** Waits for the expire duration from now, then fades out. */
	void ExpireAndFadeout();
	/** Fades out from now. */
	void Fadeout();

private:
	friend class FSlateNotificationManager;
	friend struct FNotificationManagerAccess;

	FNotificationInfo Info = FNotificationInfo(FText());
	ECompletionState CompletionState = CS_None;
	/** On the application's clock, as are all times. */
	double StartTime = 0.0;
	/** Negative while nothing ends the notification. */
	double EndTime = -1.0;
};
