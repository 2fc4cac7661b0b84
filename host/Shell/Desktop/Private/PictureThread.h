// SPDX-License-Identifier: MIT
/** Draws scenes on a thread of its own, so that the windows never wait for a picture. */
#pragma once

#include "Host/SceneRenderer.h"

#include <QImage>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace Host
{

struct FPictureOrder
{
	FSceneSnapshot Scene;
	/** Of the picture, in pixels; at least 1. */
	int Width = 1;
	int Height = 1;
	FRenderOptions Options;
	/** Comes back with the picture. */
	int Quality = 0;
};

/** A picture, or an error of one line and no picture. */
struct FFinishedPicture
{
	QImage Image;
	std::string Error; // empty on success
	int Quality = 0;
	double Milliseconds = 0; // of drawing
};

/** One renderer with its thread. Made, used and ended on one thread. */
class FPictureThread
{
public:
	/** @param InOnFinished  called on the drawing thread when Take has something */
	explicit FPictureThread(std::function<void()> InOnFinished);
	/** Waits for the picture that is being drawn. */
	~FPictureThread();
	FPictureThread(const FPictureThread&) = delete;
	FPictureThread& operator=(const FPictureThread&) = delete;

	/** Draws the scene next; an order that was not begun is dropped. */
	void Order(FPictureOrder&& NewOrder);
	/** The picture that was finished last, once. */
	std::optional<FFinishedPicture> Take();
	/** An order waits or is being drawn. */
	bool IsBusy() const;

private:
	void Run();
	FFinishedPicture Draw(FPictureOrder& Order);

	const std::function<void()> OnFinished;
	mutable std::mutex Mutex;
	std::condition_variable HasWork;
	std::optional<FPictureOrder> Next;
	std::optional<FFinishedPicture> Finished;
	bool bDrawing = false;
	bool bEnd = false;
	// Of the thread
	std::unique_ptr<FSceneRenderer> Renderer;
	std::string Failure; // why there is no renderer
	std::thread Thread;
};

} // namespace Host
