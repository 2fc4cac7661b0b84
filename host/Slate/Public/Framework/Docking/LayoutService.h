// SPDX-License-Identifier: MIT
#pragma once

// Layouts in the settings files.

#include "Framework/Docking/TabManager.h"

/** Keeps each layout as one JSON text under its name, in the section "EditorLayouts". */
struct FLayoutSaveRestore
{
	/**
	 * The saved layout of the default's name. The default comes back when none is saved, when the saved text is broken
	 * (a line in the log says so) or when it lacks the primary area that the default has.
	 *
	 * @param InPrimaryAreaOutputCanBeNullptr  other than Never: a saved layout without a primary area is good
	 */
	static TSharedRef<FTabManager::FLayout> LoadFromConfig(const FString& InConfigFileName,
		const TSharedRef<FTabManager::FLayout>& InDefaultLayout,
		const EOutputCanBeNullptr InPrimaryAreaOutputCanBeNullptr = EOutputCanBeNullptr::Never);

	/** The file is written when the settings are flushed. */
	static void SaveToConfig(const FString& InConfigFileName, const TSharedRef<FTabManager::FLayout>& InLayoutToSave);
};
