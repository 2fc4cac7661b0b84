// SPDX-License-Identifier: MIT
#include "FrameLoop.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace Host
{

namespace
{

constexpr int FrameMilliseconds = 16; // the pace of most screens
constexpr int IdleMilliseconds = 100;
// A program that was stopped, or a computer that slept, goes on from where it was.
constexpr double LongestStep = 0.5; // seconds

bool IsInput(QEvent::Type Type)
{
	switch (Type)
	{
		case QEvent::MouseButtonPress:
		case QEvent::MouseButtonRelease:
		case QEvent::MouseButtonDblClick:
		case QEvent::MouseMove:
		case QEvent::Wheel:
		case QEvent::KeyPress:
		case QEvent::KeyRelease:
		case QEvent::InputMethod:
		case QEvent::DragMove:
		case QEvent::Drop:
		case QEvent::Resize:
		case QEvent::Show:
		case QEvent::FocusIn:
		case QEvent::WindowActivate:
		case QEvent::TouchUpdate:
		case QEvent::NativeGesture:
			return true;
		default:
			return false;
	}
}

} // namespace

FFrameLoop::FFrameLoop(std::function<bool(double)> InFrame)
	: Frame(std::move(InFrame))
{
	Timer.setSingleShot(true);
	Timer.setTimerType(Qt::PreciseTimer);
	connect(&Timer, &QTimer::timeout, this, [this] { RunFrame(); });
	SinceFrame.start();
	Timer.start(0);
	QCoreApplication::instance()->installEventFilter(this);
}

FFrameLoop::~FFrameLoop()
{
	if (QCoreApplication::instance())
	{
		QCoreApplication::instance()->removeEventFilter(this);
	}
}

void FFrameLoop::Wake()
{
	if (!bWakePosted.exchange(true))
	{
		QMetaObject::invokeMethod(
			this, [this] { WakeHere(); }, Qt::QueuedConnection);
	}
}

void FFrameLoop::WakeHere()
{
	bWakePosted = false;
	Schedule(std::max(0, FrameMilliseconds - static_cast<int>(SinceFrame.elapsed())));
}

void FFrameLoop::Schedule(int Milliseconds)
{
	if (!Timer.isActive() || Timer.remainingTime() > Milliseconds)
	{
		Timer.start(Milliseconds);
	}
}

void FFrameLoop::RunFrame()
{
	const double Seconds = std::min(static_cast<double>(SinceFrame.nsecsElapsed()) * 1e-9, LongestStep);
	SinceFrame.restart();
	++Frames;
	const bool bGoOn = Frame(Seconds);
	const int Spent = static_cast<int>(SinceFrame.elapsed());
	Schedule(bGoOn ? std::max(0, FrameMilliseconds - Spent) : IdleMilliseconds);
}

bool FFrameLoop::eventFilter(QObject*, QEvent* Event)
{
	if (IsInput(Event->type()))
	{
		WakeHere();
	}
	return false;
}

} // namespace Host
