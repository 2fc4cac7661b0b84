// SPDX-License-Identifier: MIT
/** Does with the editor what a user would, by its entries and commands. */
#pragma once

#include "ConsoleServices.h"
#include "Host/EditorSession.h"
#include "Host/HeadlessEditor.h"
#include "Host/SceneCapture.h"
#include "Templates/SharedPointer.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class FZEFTandemEditor;
class SDockTab;

namespace Host
{

class FSceneRenderer;

/** Operations that can fail give an error of one line, empty on success. */
class FEditorDriver
{
public:
	explicit FEditorDriver(const FHeadlessOptions& InOptions);
	~FEditorDriver();

	std::string Start();

	/** Presses the entry in the level editor's tool bar: opens the editor, or brings it to the front. */
	std::string OpenEditor();
	std::string CloseEditor();
	bool IsEditorOpen() const { return GetEditor().IsValid(); }
	/** Empty when it is closed. Whoever holds it over a frame keeps it from closing. */
	TSharedPtr<FZEFTandemEditor> GetEditor() const;

	/** Runs a command "Context.Name" if it may. */
	std::string Execute(const std::string& Command);

	std::string WaitForPeer(double Seconds);
	/** Until everything that was asked for before has arrived, or the link is lost. */
	std::string WaitForArrivals(double Seconds);
	void RunFor(double Seconds);

	/** Rows of the tree by the name of their object or by its kind; "none" for no row. */
	std::string Select(const std::vector<std::string>& Names);
	std::string OpenTab(const std::string& Name);
	std::string CloseTab(const std::string& Name);

	std::string SavePicture(const FPictureOptions& Picture);
	std::vector<FUpdateRow> CollectRows() const;

	FConsoleDialogs& GetDialogs() { return Dialogs; }

private:
	using FClock = std::chrono::steady_clock;

	void FollowClient();
	void EndConversion();
	std::string RequireEditor() const;
	/** False when the condition did not come true in time, or the editor was closed. */
	bool TickUntil(const std::function<bool()>& Condition, double Seconds);
	void RunFrame(FClock::time_point& LastFrame);
	TSharedPtr<SDockTab> FindTab(const std::string& Name) const;

	FHeadlessOptions Options;
	FConsoleLog ConsoleLog;
	FConsoleDialogs Dialogs;
	FEditorSession Session;
	FSceneCapture Capture;
	std::unique_ptr<FSceneRenderer> Renderer;
	std::map<int, double> ConvertMilliseconds; // by object type
	FClock::time_point ConversionStart;
	int ConvertedType = 0; // 0: none is being converted
	bool bConnected = false;
	bool bAnswered = false;
	bool bLost = false;
};

/** A kind of object as people call it: Garment, Avatar, Outfit, Prop. */
std::string DescribeObjectType(int ObjectType);

} // namespace Host
