// SPDX-License-Identifier: MIT
/** The editor with no display: boots the engine layer, opens the one editor instance and drives it by its commands. */
#pragma once

#include "Host/UpdateReport.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace Host
{

struct FHeadlessOptions
{
	/** Project folder with Config/, Content/ and Saved/; made when it is not there. */
	std::filesystem::path Project;
	/** Folder of ZEFTandem.uplugin. */
	std::filesystem::path Plugin;
	/** ZeroMQ endpoint in place of the one of the channel "Tandem"; empty for the channel's. */
	std::string Endpoint;
	/** Ask for garments with one material. */
	bool bUnifiedMaterial = false;
	/** How long to wait for the garment application and then for what it sends, in seconds. */
	double Timeout = 60;
	/** Print every line of the log, not warnings and errors alone. */
	bool bVerbose = false;
};

struct FPictureOptions
{
	std::filesystem::path File; // .png
	std::int32_t Width = 1280;
	std::int32_t Height = 960;
	/** Degrees; yaw 180 looks at what faces +X. */
	float Pitch = -8;
	float Yaw = 180;
	float FieldOfView = 30;
};

/** An update's outcome: rows of what stands in the preview, or an error of one line that says what to do. */
struct FUpdateOutcome
{
	std::vector<FUpdateRow> Rows;
	std::string Error;

	bool IsOk() const { return Error.empty(); }
};

/** One at a time in a process. */
class FHeadlessEditor
{
public:
	/** @return null with a reason in OutError when the project or the plug-in cannot be used */
	static std::unique_ptr<FHeadlessEditor> Open(const FHeadlessOptions& Options, std::string& OutError);
	~FHeadlessEditor();

	/** Runs the editor's Update command and waits until everything that it brings stands in the preview. */
	FUpdateOutcome Update();

	/**
	 * Draws the preview scene.
	 * @return an error of one line, empty on success
	 */
	std::string SavePicture(const FPictureOptions& Picture);

	/** Objects alive in the object system; for watching that nothing is left over. */
	std::int64_t CountObjects() const;

	/** Collects what nothing refers to any more. */
	void CollectGarbage();

private:
	class FImpl;
	explicit FHeadlessEditor(std::unique_ptr<FImpl> InImpl);
	std::unique_ptr<FImpl> Impl;
};

} // namespace Host
