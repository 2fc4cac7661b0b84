// SPDX-License-Identifier: MIT
/** The editor in windows. */
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

class QWidget;

namespace Host
{

struct FDesktopOptions
{
	/** Project folder with Config/, Content/ and Saved/; made when it is not there. */
	std::filesystem::path Project;
	/** Folder of ZEFTandem.uplugin. */
	std::filesystem::path Plugin;
	/** ZeroMQ endpoint in place of the one of the channel "Tandem"; empty for the channel's. */
	std::string Endpoint;
	/** Print every line of the log, not warnings and errors alone. */
	bool bVerbose = false;
	/** Print how long the start took, orbit once around what an update brings, print what that took, and end. */
	bool bMeasure = false;
};

/** One at a time in a process, on the thread of the QApplication, which exists before and after it. */
class FDesktop
{
public:
	/** Opens the main window. @return null with a reason of one line in OutError when the engine does not start */
	static std::unique_ptr<FDesktop> Open(const FDesktopOptions& Options, std::string& OutError);
	/** Closes all windows and takes the engine down. */
	~FDesktop();

	/** Runs until the main window is closed. */
	void Run();
	/** The main window is there. */
	bool IsOpen() const;

	/** Null when it is closed. */
	QWidget* MainWindow() const;
	/** Runs one frame now. */
	void RunFrame();
	std::uint64_t FrameCount() const;
	/** Every view shows its finest picture, and nothing moves. */
	bool IsStill() const;

private:
	class FImpl;
	explicit FDesktop(std::unique_ptr<FImpl> InImpl);
	std::unique_ptr<FImpl> Impl;
};

/**
 * Makes the application object, opens the desktop and runs it.
 *
 * @return an error of one line; empty when the user closed it
 */
std::string RunDesktop(int ArgumentCount, char** Arguments, const FDesktopOptions& Options);

/** Why no window can be opened, as one line that says what to do; empty when one can. */
std::string WhyNoDisplay();

} // namespace Host
