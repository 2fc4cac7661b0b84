// SPDX-License-Identifier: MIT
/** When the editor's frames run: at once after input, at the screen's pace while something moves, else seldom. */
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <functional>

namespace Host
{

/**
 * Runs frames on the thread that made it, from Qt's event loop. Input to any window of the program wakes it; so does
 * Wake. Without either it runs a few frames a second, for timers of the model that nobody announces.
 */
class FFrameLoop : public QObject
{
public:
	/** @param InFrame  gets the seconds since the frame before; true asks for the next one without a pause */
	explicit FFrameLoop(std::function<bool(double)> InFrame);
	~FFrameLoop() override;

	/** A frame is wanted soon. From any thread. */
	void Wake();
	/** Runs a frame now. */
	void RunFrame();

	/** Frames since the start. */
	std::uint64_t FrameCount() const { return Frames; }

	bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
	void Schedule(int Milliseconds);
	void WakeHere();

	std::function<bool(double)> Frame;
	QTimer Timer;
	QElapsedTimer SinceFrame;
	std::atomic<bool> bWakePosted{false};
	std::uint64_t Frames = 0;
};

} // namespace Host
