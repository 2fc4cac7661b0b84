// SPDX-License-Identifier: MIT
#include "Host/HeadlessEditor.h"

#include "ConsoleServices.h"
#include "Containers/StringConv.h"
#include "Editor/ZEFPreviewScene.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Engine/World.h"
#include "Framework/Commands/UICommandList.h"
#include "Host/EditorSession.h"
#include "Host/ObjectCensus.h"
#include "Host/PngFile.h"
#include "Host/SceneCamera.h"
#include "Host/SceneCapture.h"
#include "Host/SceneRenderer.h"
#include "Modules/ModuleManager.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"
#include "UpdateRows.h"
#include "ZEFTandemClientComponent.h"

#include <chrono>
#include <map>
#include <thread>

namespace Host
{

namespace
{

using FClock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds IdleTime{1}; // between two frames with nothing to do

double SecondsSince(FClock::time_point Start)
{
	return std::chrono::duration<double>(FClock::now() - Start).count();
}

FString ToString(const std::filesystem::path& Path)
{
	return UTF8_TO_TCHAR(std::filesystem::absolute(Path).string().c_str());
}

} // namespace

class FHeadlessEditor::FImpl
{
public:
	explicit FImpl(const FHeadlessOptions& InOptions)
		: Options(InOptions)
		, ConsoleLog(InOptions.bVerbose)
	{
	}

	~FImpl() { Editor.Reset(); }

	std::string Start()
	{
		std::string Error = Session.Start({Options.Project, Options.Plugin, Options.Endpoint});
		if (Error.empty())
		{
			Open();
		}
		return Error;
	}

	FUpdateOutcome Update()
	{
		FUpdateOutcome Outcome;
		if (!TickUntil([this] { return bConnected; }))
		{
			Outcome.Error = "no garment application came up within " +
							std::to_string(static_cast<int>(Options.Timeout)) +
							" s; start one, for instance with: zef-peer serve";
			return Outcome;
		}
		Dialogs.TakeMessages();
		bAnswered = false;
		bLost = false;
		const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
		if (Options.bUnifiedMaterial != Editor->IsUnifiedMaterial())
		{
			Editor->GetToolkitCommands()->ExecuteAction(Commands.SetUnifiedMaterial.ToSharedRef());
		}
		Editor->GetToolkitCommands()->ExecuteAction(Commands.Update.ToSharedRef());
		// Requests are answered in their order, so this answer says that all objects have arrived.
		Client->SendData(ZefTandemCore::TandemMessage::RequestAvailability);
		const bool bInTime = TickUntil([this] { return bAnswered || bLost; });
		const std::vector<std::string> Messages = Dialogs.TakeMessages();
		if (bLost || !bInTime)
		{
			Outcome.Error = !Messages.empty() ? Messages.front()
											  : "the garment application did not answer within " +
													std::to_string(static_cast<int>(Options.Timeout)) + " s";
			return Outcome;
		}
		Outcome.Rows = CollectUpdateRows(*Editor, ConvertMilliseconds);
		return Outcome;
	}

	std::string SavePicture(const FPictureOptions& Picture)
	{
		if (!Renderer)
		{
			std::string Error;
			Renderer = FSceneRenderer::Create(Error);
			if (!Renderer)
			{
				return Error;
			}
		}
		FSceneSnapshot Scene = Capture.Capture(*Editor->GetPreviewScene()->GetWorld());
		LookAtScene(Scene, Picture.Pitch, Picture.Yaw, Picture.FieldOfView,
			static_cast<float>(Picture.Width) / static_cast<float>(Picture.Height));
		const FRenderResult Drawn = Renderer->Render(Scene, Picture.Width, Picture.Height);
		if (!Drawn.IsOk())
		{
			return Drawn.Error;
		}
		FString Error;
		WritePng(
			ToString(Picture.File), Drawn.Image.Width, Drawn.Image.Height, 4, 8, Drawn.Image.Pixels.data(), &Error);
		return TCHAR_TO_UTF8(*Error);
	}

private:
	void Open()
	{
		FZEFTandemEditorModule& Module =
			FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
		Editor = StaticCastSharedPtr<FZEFTandemEditor>(Module.CreateEditor());
		Client = Editor->GetClient();
		Client->OnConnectionChanged.AddLambda(
			[this](bool bNow)
			{
				bConnected = bNow;
				bLost = bLost || !bNow;
			});
		Client->OnAvailabilityReceived.AddLambda(
			[this](const ZefTandemCore::TandemAvailability&) { bAnswered = true; });
		// Runs before the editor's own handler: a delegate calls what was added last first.
		Client->OnSurfaceMeshReceived.AddLambda(
			[this](const ZefTandemCore::TandemObjectType& Type, const FZEFSurfaceMesh&)
			{
				EndConversion();
				ConvertedType = static_cast<int>(Type);
				ConversionStart = FClock::now();
			});
	}

	void EndConversion()
	{
		if (ConvertedType != 0)
		{
			ConvertMilliseconds[ConvertedType] = 1000.0 * SecondsSince(ConversionStart);
			ConvertedType = 0;
		}
	}

	template <typename FCondition>
	bool TickUntil(FCondition Condition)
	{
		const FClock::time_point Start = FClock::now();
		FClock::time_point LastFrame = Start;
		while (!Condition())
		{
			if (SecondsSince(Start) > Options.Timeout)
			{
				return false;
			}
			const double DeltaSeconds = SecondsSince(LastFrame);
			LastFrame = FClock::now();
			Session.Engine().Tick(DeltaSeconds);
			EndConversion();
			std::this_thread::sleep_for(IdleTime);
		}
		return true;
	}

	FHeadlessOptions Options;
	FConsoleLog ConsoleLog;
	FConsoleDialogs Dialogs;
	FEditorSession Session;
	TSharedPtr<FZEFTandemEditor> Editor;
	UZEFTandemClientComponent* Client = nullptr; // the editor's
	FSceneCapture Capture;
	std::unique_ptr<FSceneRenderer> Renderer;
	std::map<int, double> ConvertMilliseconds; // by object type
	FClock::time_point ConversionStart;
	int ConvertedType = 0; // 0: none is being converted
	bool bConnected = false;
	bool bAnswered = false;
	bool bLost = false;
};

std::unique_ptr<FHeadlessEditor> FHeadlessEditor::Open(const FHeadlessOptions& Options, std::string& OutError)
{
	std::unique_ptr<FImpl> NewImpl = std::make_unique<FImpl>(Options);
	OutError = NewImpl->Start();
	if (!OutError.empty())
	{
		return nullptr;
	}
	return std::unique_ptr<FHeadlessEditor>(new FHeadlessEditor(std::move(NewImpl)));
}

FHeadlessEditor::FHeadlessEditor(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FHeadlessEditor::~FHeadlessEditor() = default;

FUpdateOutcome FHeadlessEditor::Update()
{
	return Impl->Update();
}

std::string FHeadlessEditor::SavePicture(const FPictureOptions& Picture)
{
	return Impl->SavePicture(Picture);
}

std::int64_t FHeadlessEditor::CountObjects() const
{
	return TakeObjectCensus().Total;
}

void FHeadlessEditor::CollectGarbage()
{
	::CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);
}

} // namespace Host
