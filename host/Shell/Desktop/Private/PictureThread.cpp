// SPDX-License-Identifier: MIT
#include "PictureThread.h"

#include <chrono>
#include <utility>

namespace Host
{

FPictureThread::FPictureThread(std::function<void()> InOnFinished)
	: OnFinished(std::move(InOnFinished))
	, Thread([this] { Run(); })
{
}

FPictureThread::~FPictureThread()
{
	{
		const std::lock_guard Lock(Mutex);
		bEnd = true;
		Next.reset();
	}
	HasWork.notify_one();
	Thread.join();
}

void FPictureThread::Order(FPictureOrder&& NewOrder)
{
	{
		const std::lock_guard Lock(Mutex);
		Next = std::move(NewOrder);
	}
	HasWork.notify_one();
}

std::optional<FFinishedPicture> FPictureThread::Take()
{
	const std::lock_guard Lock(Mutex);
	return std::exchange(Finished, std::nullopt);
}

bool FPictureThread::IsBusy() const
{
	const std::lock_guard Lock(Mutex);
	return bDrawing || Next.has_value();
}

void FPictureThread::Run()
{
	std::unique_lock Lock(Mutex);
	for (;;)
	{
		HasWork.wait(Lock, [this] { return bEnd || Next; });
		if (bEnd)
		{
			break;
		}
		FPictureOrder Order = std::move(*Next);
		Next.reset();
		bDrawing = true;
		Lock.unlock();
		FFinishedPicture Picture = Draw(Order);
		Lock.lock();
		bDrawing = false;
		Finished = std::move(Picture);
		OnFinished();
	}
	Lock.unlock();
	Renderer.reset(); // its context belongs to this thread
}

FFinishedPicture FPictureThread::Draw(FPictureOrder& Order)
{
	FFinishedPicture Picture;
	Picture.Quality = Order.Quality;
	if (!Renderer && Failure.empty())
	{
		Renderer = FSceneRenderer::Create(Failure);
	}
	if (!Renderer)
	{
		Picture.Error = Failure;
		return Picture;
	}
	const auto Start = std::chrono::steady_clock::now();
	FRenderResult Result = Renderer->Render(Order.Scene, Order.Width, Order.Height, Order.Options);
	Picture.Error = std::move(Result.Error);
	if (Picture.Error.empty())
	{
		auto* const Pixels = new FImage(std::move(Result.Image));
		Picture.Image = QImage(
			Pixels->Pixels.data(), Pixels->Width, Pixels->Height, Pixels->Width * 4, QImage::Format_RGBX8888,
			[](void* Owner) { delete static_cast<FImage*>(Owner); }, Pixels)
							.convertToFormat(QImage::Format_RGB32); // what windows are painted in
	}
	Picture.Milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - Start).count();
	return Picture;
}

} // namespace Host
