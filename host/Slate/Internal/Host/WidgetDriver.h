// SPDX-License-Identifier: MIT
#pragma once

// What a user does to widgets, without a pointer: for screens, scripts and tests.

#include "Input/Events.h"
#include "Widgets/SWidget.h"

class SButton;
class SEditableTextBox;

namespace Host
{
/** What a widget is known by. What is not set matters not; all that is set must hold. */
struct FWidgetQuery
{
	/** Class name. */
	FName Type;
	/** The tag argument, or tag meta data. */
	FName Tag;
	/** All of what TextOf gives. */
	TOptional<FString> Text;
	/** Only what can be seen: not in tabs in the background, nor below something collapsed. */
	bool bVisibleOnly = true;

	static FWidgetQuery ByType(FName InType);
	static FWidgetQuery ByTag(FName InTag);
	static FWidgetQuery ByText(const FString& InText);
	/** For messages, such as "SButton 'Save'". */
	FString ToString() const;
};

/** The words of a widget: its own text, label or title, else those of the texts in it, with blanks between them. */
FString TextOf(const TSharedRef<SWidget>& Widget);

/** All matches below the root, and the root itself, in the order of ForEachWidget. */
TArray<TSharedRef<SWidget>> FindWidgets(const TSharedRef<SWidget>& Root, const FWidgetQuery& Query);
/** The first match; empty when there is none. */
TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, const FWidgetQuery& Query);
/** The first match in any window or open menu, the newest menu first, then the active window. */
TSharedPtr<SWidget> FindWidgetAnywhere(const FWidgetQuery& Query);

/** An operation's result: nothing when it was done, else why not, as a sentence without a full stop. */
struct FDriveResult
{
	FString WhyNot;

	bool IsDone() const { return WhyNot.IsEmpty(); }
	explicit operator bool() const { return IsDone(); }
};

/**
 * Clicks a widget: a button is clicked, a combo button opens or closes, an entry of a menu or a tool bar is chosen or
 * opens its menu, a tab comes to the front, a text box gets the focus. A text or a picture clicks what it stands in.
 * Entries close their menus first, as their menu wants. Refused when it is disabled or not visible.
 */
FDriveResult Press(const TSharedRef<SWidget>& Widget);
/** Finds and presses. */
FDriveResult Press(const TSharedRef<SWidget>& Root, const FWidgetQuery& Query);

/** Focuses a text box and types into it, character by character; what was selected is replaced. */
FDriveResult TypeInto(const TSharedRef<SWidget>& Widget, const FString& Text);
/** A screen's own editor changed the text of a box. Nothing happens when it is read-only. */
void EditTextByUser(SEditableTextBox& Box, const FText& NewText);

/**
 * Opens the menu of a combo button or an entry, or takes a menu that is shown, and chooses by the labels.
 *
 * @param Labels  from the outermost menu to the entry; at least one
 */
FDriveResult ChooseFromMenu(const TSharedRef<SWidget>& Opener, const TArray<FString>& Labels);

/** Sends a key through the focus, down and up, with the character between. @return whether the press was handled */
bool PressKey(const FKey& Key, const FModifierKeysState& Modifiers = FModifierKeysState(), TCHAR Character = 0);

/** Gives the focus to the first widget in the tree that takes it. */
bool FocusInto(const TSharedRef<SWidget>& Root);
/**
 * Gives the focus to the next widget that takes it, in the order of the tree, within the window or menu; after the last
 * comes the first.
 */
bool FocusNext(bool bBackwards = false);
} // namespace Host
