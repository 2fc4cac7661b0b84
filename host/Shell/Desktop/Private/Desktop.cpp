// SPDX-License-Identifier: MIT
#include "Host/Desktop.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include "ConsoleServices.h"
#include "Dialogs.h"
#include "FrameLoop.h"
#include "Pictures.h"
#include "Theme.h"
#include "ViewWorld.h"
#include "WindowFrames.h"

#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "EditorViewportClient.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/EditorSession.h"
#include "Host/LevelEditorFrame.h"
#include "Host/Toolkits.h"
#include "Modules/ModuleManager.h"
#include "Zef/LinkWatch.h"
#include "ZEFTandemClientComponent.h"

#include <algorithm>
#include <cstdio>

namespace Host
{

namespace
{

/** A viewport that nobody has shown for so many frames loses its picture and its thread. */
constexpr std::uint64_t FramesOfUnusedPictures = 64;

} // namespace

class FDesktop::FImpl
{
public:
	explicit FImpl(const FDesktopOptions& InOptions)
		: Options(InOptions)
		, ConsoleLog(InOptions.bVerbose)
		, World([this] { Loop.Wake(); })
		, Windows(World, Dialogs)
	{
		QObject::connect(qApp, &QApplication::focusChanged, &Loop, [this](QWidget*, QWidget* Now) { TakeFocus(Now); });
	}

	~FImpl()
	{
		Zef::SetLinkListener(nullptr);
		bEnding = true;
		if (LevelEditor.IsValid())
		{
			CloseAllToolkits();
			LevelEditor->Close();
			LevelEditor.Reset();
		}
		Session.End();
		World.ClearGraveyard();
	}

	std::string Start()
	{
		std::string Error = Session.Start({Options.Project, Options.Plugin, Options.Endpoint});
		if (!Error.empty())
		{
			return Error;
		}
		Zef::SetLinkListener([this] { Loop.Wake(); });
		OpenMainWindow();
		Loop.RunFrame();
		return {};
	}

	FWindowFrame* MainFrame() const { return Windows.FrameOf(MainModel.Pin()); }

	/** One frame. @return whether the next one is wanted without a pause */
	bool Frame(double Seconds)
	{
		if (bEnding)
		{
			return false;
		}
		const bool bNested = bInFrame || Dialogs.IsOpen() || Windows.IsModal();
		if (bNested)
		{
			// Somebody waits for an answer: the windows go on, the world stands still.
			if (World.HasAsked())
			{
				Dialogs.DismissAll();
			}
			if (FSlateApplication::IsInitialized())
			{
				FSlateApplication::Get().Tick();
			}
			Windows.Follow();
			return World.Pictures->Advance();
		}
		bInFrame = true;
		for (const std::function<void()>& Asked : World.TakeAsked())
		{
			Asked();
		}
		Session.Engine().Tick(Seconds);
		FollowFocus();
		Windows.Follow();
		const bool bMoving = World.Pictures->Advance() || Windows.IsMoving();
		bInFrame = false;
		World.ClearGraveyard();
		if (Loop.FrameCount() % FramesOfUnusedPictures == 0)
		{
			World.Pictures->DropUnused();
		}
		if (!MainFrame())
		{
			RunLoop.quit();
		}
		return bMoving;
	}

	FDesktopOptions Options;
	FConsoleLog ConsoleLog;
	QEventLoop RunLoop;
	FFrameLoop Loop{[this](double Seconds) { return Frame(Seconds); }};
	FDialogWindows Dialogs;
	FViewWorld World;
	FWindowFrames Windows;
	FEditorSession Session;
	TWeakPtr<SWindow> MainModel;
	TSharedPtr<FLevelEditorFrame> LevelEditor;

private:
	void OpenMainWindow()
	{
		LevelEditor = Session.Engine().OpenLevelEditor();
		MainModel = LevelEditor->GetWindow();
	}

	/** The native focus went elsewhere: the model's follows. */
	void TakeFocus(QWidget* Native)
	{
		if (bMovingFocus || bEnding || !Native || !FSlateApplication::IsInitialized())
		{
			return;
		}
		if (const FWidgetView* const View = World.ViewAt(Native))
		{
			if (const TSharedPtr<SWidget> Model = View->Model())
			{
				FSlateApplication::Get().SetKeyboardFocus(Model, EFocusCause::Mouse);
				LastFocus = FSlateApplication::Get().GetKeyboardFocusedWidget();
			}
		}
	}

	/** The model's focus went elsewhere: the native one follows. */
	void FollowFocus()
	{
		const TSharedPtr<SWidget> Now = FSlateApplication::Get().GetKeyboardFocusedWidget();
		if (Now == LastFocus.Pin())
		{
			return;
		}
		LastFocus = Now;
		const FWidgetView* const View = Now.IsValid() ? World.ViewOf(*Now) : nullptr;
		if (View && View->Native() && !View->Native()->hasFocus())
		{
			bMovingFocus = true;
			View->Native()->setFocus(Qt::OtherFocusReason);
			bMovingFocus = false;
		}
	}

	TWeakPtr<SWidget> LastFocus;
	bool bInFrame = false;
	bool bMovingFocus = false;
	bool bEnding = false;
};

FDesktop::FDesktop(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FDesktop::~FDesktop() = default;

std::unique_ptr<FDesktop> FDesktop::Open(const FDesktopOptions& Options, std::string& OutError)
{
	auto NewImpl = std::make_unique<FImpl>(Options);
	OutError = NewImpl->Start();
	return OutError.empty() ? std::unique_ptr<FDesktop>(new FDesktop(std::move(NewImpl))) : nullptr;
}

void FDesktop::Run()
{
	if (IsOpen())
	{
		Impl->RunLoop.exec();
	}
}

bool FDesktop::IsOpen() const
{
	return Impl->MainFrame() != nullptr;
}

QWidget* FDesktop::MainWindow() const
{
	return Impl->MainFrame();
}

void FDesktop::RunFrame()
{
	Impl->Loop.RunFrame();
}

std::uint64_t FDesktop::FrameCount() const
{
	return Impl->Loop.FrameCount();
}

bool FDesktop::IsStill() const
{
	return Impl->World.Pictures->IsStill();
}

namespace
{

/** Turns a view once around and prints the pace. */
void MeasureOrbit(FDesktop& Desktop)
{
	const auto Wait = [](const std::function<bool()>& Done)
	{
		QElapsedTimer Clock;
		for (Clock.start(); !Done() && Clock.elapsed() < 60000;)
		{
			QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
		}
		return Done();
	};
	const TSharedPtr<FZEFTandemEditor> Editor = StaticCastSharedPtr<FZEFTandemEditor>(
		FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor")).CreateEditor());
	bool bAnswered = false;
	Editor->GetClient()->OnAvailabilityReceived.AddLambda(
		[&bAnswered](const ZefTandemCore::TandemAvailability&) { bAnswered = true; });
	Editor->GetClient()->SendData(ZefTandemCore::TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions());
	Editor->GetClient()->SendData(ZefTandemCore::TandemMessage::RequestAvailability);
	if (!Wait([&] { return bAnswered; }) || !Wait([&] { return Desktop.IsStill(); }))
	{
		std::printf("orbit: no garment application answered\n");
		return;
	}
	const TSharedPtr<FEditorViewportClient> Client = Editor->GetViewport()->GetViewportClient();
	constexpr int Steps = 120;
	std::vector<double> Frames;
	QElapsedTimer Clock;
	for (int Step = 0; Step < Steps; ++Step)
	{
		Client->SetViewRotation(FRotator(-15.0, 180.0 + 360.0 * Step / Steps, 0.0));
		Client->Invalidate();
		Clock.start();
		Desktop.RunFrame();
		QApplication::processEvents();
		Frames.push_back(static_cast<double>(Clock.nsecsElapsed()) * 1e-6);
	}
	std::sort(Frames.begin(), Frames.end());
	std::printf("orbit: window frame %.2f ms median, %.2f ms at most\n", Frames[Steps / 2], Frames.back());
}

} // namespace

std::string RunDesktop(int ArgumentCount, char** Arguments, const FDesktopOptions& Options)
{
	QElapsedTimer SinceStart;
	SinceStart.start();
	QApplication Application(ArgumentCount, Arguments);
	QApplication::setApplicationDisplayName("ZEF/KR Tandem");
	QApplication::setDesktopFileName("zef-tandem");
	QApplication::setQuitOnLastWindowClosed(false);
	ApplyTheme(Application);
	std::string Error;
	const std::unique_ptr<FDesktop> Desktop = FDesktop::Open(Options, Error);
	if (Desktop && Options.bMeasure)
	{
		QApplication::processEvents();
		Desktop->RunFrame();
		std::printf("start to interactive window: %.0f ms\n", static_cast<double>(SinceStart.nsecsElapsed()) * 1e-6);
		MeasureOrbit(*Desktop);
	}
	else if (Desktop)
	{
		Desktop->Run();
	}
	return Error;
}

} // namespace Host
