// SPDX-License-Identifier: MIT
#pragma once

// Layouts as JSON.

#include "Docking/JsonText.h"
#include "Framework/Docking/TabManager.h"

/**
 * Writes and reads
 * `{"Type": "Layout", "Name": ..., "PrimaryAreaIndex": ..., "Areas": [...]}`, where an area has `Orientation`,
 * `WindowPlacement`, the window's position and size, and `Nodes`; a node is a `Splitter` of nodes or a `Stack` of
 * `Tabs`. Unknown names are passed over; numbers that make no sense get their defaults.
 */
class FLayoutText
{
public:
	static FString Write(const FTabManager::FLayout& Layout);
	/** @param OutError  why there is no layout, when the result is empty */
	static TSharedPtr<FTabManager::FLayout> Read(const FString& Text, FString& OutError);

private:
	using FJsonValue = Host::FJsonValue;

	static FString WriteNode(FTabManager::FLayoutNode& Node);
	static FString WriteStack(const FTabManager::FStack& Stack);
	static FString WriteNodes(const FTabManager::FSplitter& Splitter);
	static FString WriteArea(const FTabManager::FArea& Area);

	static bool ReadArea(const FJsonValue& Value, FTabManager::FArea& OutArea, FString& OutError);
	static bool ReadNodes(const FJsonValue& Value, FTabManager::FSplitter& OutSplitter, FString& OutError);
	static bool ReadStack(const FJsonValue& Value, FTabManager::FStack& OutStack, FString& OutError);
};
