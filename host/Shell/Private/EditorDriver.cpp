// SPDX-License-Identifier: MIT
#include "EditorDriver.h"

#include "Components/PrimitiveComponent.h"
#include "Containers/StringConv.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFPreviewScene.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Engine/World.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "Host/Docking.h"
#include "Host/LevelEditorFrame.h"
#include "Host/MultiBoxes.h"
#include "Host/PngFile.h"
#include "Host/SceneCamera.h"
#include "Host/SceneRenderer.h"
#include "Modules/ModuleManager.h"
#include "UpdateRows.h"
#include "Widgets/Docking/SDockTab.h"
#include "ZEFTandemClientComponent.h"

#include <cmath>
#include <thread>

namespace Host
{

namespace
{

constexpr std::chrono::milliseconds IdleTime{1}; // between two frames with nothing to do
constexpr const char* EditorIsClosed = "the editor is not open; open it first";

std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::string ToStd(const FName& Name)
{
	return ToStd(Name.ToString());
}

FString ToEngine(const std::string& Text)
{
	return UTF8_TO_TCHAR(Text.c_str());
}

double SecondsSince(std::chrono::steady_clock::time_point Start)
{
	return std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
}

std::string FormatSeconds(double Seconds)
{
	char Text[32];
	std::snprintf(Text, sizeof(Text), "%g s", Seconds);
	return Text;
}

std::string ListCommands(FName Context)
{
	TArray<TSharedPtr<FUICommandInfo>> Commands;
	FInputBindingManager::Get().GetCommandInfosFromContext(Context, Commands);
	std::string List;
	for (const TSharedPtr<FUICommandInfo>& Command : Commands)
	{
		List += (List.empty() ? "" : ", ") + ToStd(Command->GetCommandName());
	}
	return List;
}

/** Empty, with a reason, when there is none. */
TSharedPtr<FUICommandInfo> FindCommand(const std::string& Command, std::string& OutError)
{
	const std::size_t Point = Command.find('.');
	const FName Context(*ToEngine(Command.substr(0, Point)));
	const FName Name(*ToEngine(Point == std::string::npos ? std::string() : Command.substr(Point + 1)));
	const TSharedPtr<FUICommandInfo> Found = FInputBindingManager::Get().FindCommandInContext(Context, Name);
	if (!Found.IsValid())
	{
		const std::string Known = ListCommands(Context);
		OutError = "there is no command \"" + Command + "\"; " +
				   (Known.empty() ? "no context \"" + ToStd(Context) + "\" has commands"
								  : "\"" + ToStd(Context) + "\" has: " + Known);
	}
	return Found;
}

} // namespace

std::string DescribeObjectType(int ObjectType)
{
	switch (ObjectType)
	{
		case 2:
			return "Garment";
		case 4:
			return "Avatar";
		case 8:
			return "Outfit";
		case 16:
			return "Prop";
		default:
			return "Object";
	}
}

FEditorDriver::FEditorDriver(const FHeadlessOptions& InOptions)
	: Options(InOptions)
	, ConsoleLog(InOptions.bVerbose)
{
}

FEditorDriver::~FEditorDriver() = default;

std::string FEditorDriver::Start()
{
	return Session.Start({Options.Project, Options.Plugin, Options.Endpoint});
}

TSharedPtr<FZEFTandemEditor> FEditorDriver::GetEditor() const
{
	FZEFTandemEditorModule* const Module =
		FModuleManager::GetModulePtr<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	return Module != nullptr ? StaticCastSharedPtr<FZEFTandemEditor>(Module->GetEditor()) : nullptr;
}

std::string FEditorDriver::OpenEditor()
{
	const bool bWasOpen = IsEditorOpen();
	const TSharedPtr<SWidget> ToolBar = Session.Engine().OpenLevelEditor()->GetToolBar();
	const TSharedPtr<SMultiBoxItem> Button = FindMultiBoxItemByName(ToolBar.ToSharedRef(), TEXT("OpenPluginWindow"));
	if (!Button.IsValid() || !Button->Press() || !IsEditorOpen())
	{
		return "the level editor's tool bar has no entry that opens the editor";
	}
	if (!bWasOpen)
	{
		FollowClient();
	}
	return {};
}

std::string FEditorDriver::CloseEditor()
{
	const std::string Error = RequireEditor();
	if (Error.empty())
	{
		GetEditor()->CloseWindow();
	}
	return Error;
}

void FEditorDriver::FollowClient()
{
	bConnected = false;
	UZEFTandemClientComponent& Client = *GetEditor()->GetClient();
	Client.OnConnectionChanged.AddLambda(
		[this](bool bNow)
		{
			bConnected = bNow;
			bLost = bLost || !bNow;
		});
	Client.OnAvailabilityReceived.AddLambda([this](const ZefTandemCore::TandemAvailability&) { bAnswered = true; });
	// Runs before the editor's own handler: a delegate calls what was added last first.
	Client.OnSurfaceMeshReceived.AddLambda(
		[this](const ZefTandemCore::TandemObjectType& Type, const FZEFSurfaceMesh&)
		{
			EndConversion();
			ConvertedType = static_cast<int>(Type);
			ConversionStart = FClock::now();
		});
}

void FEditorDriver::EndConversion()
{
	if (ConvertedType != 0)
	{
		ConvertMilliseconds[ConvertedType] = 1000.0 * SecondsSince(ConversionStart);
		ConvertedType = 0;
	}
}

std::string FEditorDriver::RequireEditor() const
{
	return IsEditorOpen() ? std::string() : EditorIsClosed;
}

std::string FEditorDriver::Execute(const std::string& Command)
{
	std::string Error = RequireEditor();
	if (!Error.empty())
	{
		return Error;
	}
	const TSharedPtr<FUICommandInfo> Found = FindCommand(Command, Error);
	if (!Found.IsValid())
	{
		return Error;
	}
	TArray<TSharedPtr<FUICommandList>> Lists = {GetEditor()->GetToolkitCommands()};
	if (const TSharedPtr<SZEFTandemEditorViewport> Viewport = GetEditor()->GetViewport())
	{
		Lists.Add(Viewport->GetCommandList());
	}
	for (const TSharedPtr<FUICommandList>& List : Lists)
	{
		if (List.IsValid() && List->IsActionMapped(Found))
		{
			bLost = false;
			return List->TryExecuteAction(Found.ToSharedRef()) ? std::string()
															   : "the command \"" + Command + "\" is off now";
		}
	}
	return "the command \"" + Command + "\" does nothing in this editor";
}

bool FEditorDriver::TickUntil(const std::function<bool()>& Condition, double Seconds)
{
	const FClock::time_point Start = FClock::now();
	FClock::time_point LastFrame = Start;
	while (!Condition())
	{
		if (SecondsSince(Start) > Seconds || !IsEditorOpen())
		{
			return false;
		}
		RunFrame(LastFrame);
	}
	return true;
}

void FEditorDriver::RunFrame(FClock::time_point& LastFrame)
{
	const double DeltaSeconds = SecondsSince(LastFrame);
	LastFrame = FClock::now();
	Session.Engine().Tick(DeltaSeconds);
	EndConversion();
	std::this_thread::sleep_for(IdleTime);
}

std::string FEditorDriver::WaitForPeer(double Seconds)
{
	const std::string Error = RequireEditor();
	if (!Error.empty() || TickUntil([this] { return bConnected; }, Seconds))
	{
		return Error;
	}
	return !IsEditorOpen() ? "the editor was closed while it waited"
						   : "no garment application came up within " + FormatSeconds(Seconds) +
								 "; start one, for instance with: zef-peer serve";
}

std::string FEditorDriver::WaitForArrivals(double Seconds)
{
	const std::string Error = RequireEditor();
	if (!Error.empty())
	{
		return Error;
	}
	// Requests are answered in their order, so this answer says that all objects have arrived.
	bAnswered = false;
	GetEditor()->GetClient()->SendData(ZefTandemCore::TandemMessage::RequestAvailability);
	if (TickUntil([this] { return bAnswered || bLost; }, Seconds) && !bLost)
	{
		return {};
	}
	const std::vector<std::string> Messages = Dialogs.TakeMessages();
	if (!Messages.empty())
	{
		return Messages.front();
	}
	return !IsEditorOpen() ? "the editor was closed while it waited"
						   : "the garment application did not answer within " + FormatSeconds(Seconds);
}

void FEditorDriver::RunFor(double Seconds)
{
	const FClock::time_point Start = FClock::now();
	FClock::time_point LastFrame = Start;
	while (SecondsSince(Start) < Seconds)
	{
		RunFrame(LastFrame);
	}
}

std::string FEditorDriver::Select(const std::vector<std::string>& Names)
{
	const std::string Error = RequireEditor();
	if (!Error.empty())
	{
		return Error;
	}
	const TSharedPtr<IZEFTandemTree> Tree = GetEditor()->GetTandemTree();
	if (!Tree.IsValid())
	{
		return "the tree of objects is not open; write: tab open \"Tandem Tree\"";
	}
	std::vector<bool> Used(Names.size(), false);
	Tree->SelectItemsBy(
		[&Names, &Used](const IZEFTandemTreeItem& Item)
		{
			const UPrimitiveComponent* const Component = Item.GetPreviewSceneComponent();
			const std::string Object = Component != nullptr ? ToStd(Component->GetName()) : std::string();
			bool bSelected = false;
			for (std::size_t Index = 0; Index < Names.size(); ++Index)
			{
				if (Names[Index] == Object || Names[Index] == DescribeObjectType(Item.GetObjectType()))
				{
					Used[Index] = true;
					bSelected = true;
				}
			}
			return bSelected;
		});
	TArray<UPrimitiveComponent*> Selected;
	for (const TSharedPtr<IZEFTandemTreeItem>& Item : Tree->GetSelectedItems())
	{
		Selected.Add(Item->GetPreviewSceneComponent());
	}
	GetEditor()->SetSelectedObjects(Selected, false);
	for (std::size_t Index = 0; Index < Names.size(); ++Index)
	{
		if (!Used[Index] && Names[Index] != "none")
		{
			return "no object is called \"" + Names[Index] + "\"; see: print tree";
		}
	}
	return {};
}

std::string FEditorDriver::OpenTab(const std::string& Name)
{
	const std::string Error = RequireEditor();
	if (!Error.empty())
	{
		return Error;
	}
	const TSharedPtr<FTabManager> Manager = GetEditor()->GetAssociatedTabManager();
	std::string Known;
	for (const TSharedRef<FWorkspaceItem>& Category : Manager->GetLocalWorkspaceMenuRoot()->GetChildItems())
	{
		for (const TSharedRef<FWorkspaceItem>& Item : Category->GetChildItems())
		{
			const TSharedPtr<FTabSpawnerEntry> Entry = Item->AsSpawnerEntry();
			const std::string Label = ToStd(Item->GetDisplayName().ToString());
			if (Entry.IsValid() && (Label == Name || ToStd(Entry->GetTabType()) == Name))
			{
				return Manager->TryInvokeTab(Entry->GetTabType()).IsValid() ? std::string()
																			: "the tab \"" + Name + "\" does not open";
			}
			Known += (Known.empty() ? "" : ", ") + Label;
		}
	}
	return "there is no tab \"" + Name + "\"; allowed are: " + Known;
}

TSharedPtr<SDockTab> FEditorDriver::FindTab(const std::string& Name) const
{
	for (const TSharedRef<SDockTab>& Tab : OpenTabs(*GetEditor()->GetAssociatedTabManager()))
	{
		if (ToStd(Tab->GetTabLabel().ToString()) == Name || ToStd(Tab->GetLayoutIdentifier().TabType) == Name)
		{
			return Tab;
		}
	}
	return nullptr;
}

std::string FEditorDriver::CloseTab(const std::string& Name)
{
	const std::string Error = RequireEditor();
	if (!Error.empty())
	{
		return Error;
	}
	const TSharedPtr<SDockTab> Tab = FindTab(Name);
	if (!Tab.IsValid())
	{
		return "no tab \"" + Name + "\" is open; see: print tabs";
	}
	return Tab->RequestCloseTab() ? std::string() : "the tab \"" + Name + "\" does not close";
}

std::string FEditorDriver::SavePicture(const FPictureOptions& Picture)
{
	std::string RenderError = RequireEditor();
	if (RenderError.empty() && !Renderer)
	{
		Renderer = FSceneRenderer::Create(RenderError);
	}
	if (!RenderError.empty())
	{
		return RenderError;
	}
	FSceneSnapshot Scene = Capture.Capture(*GetEditor()->GetPreviewScene()->GetWorld());
	LookAtScene(Scene, Picture.Pitch, Picture.Yaw, Picture.FieldOfView,
		static_cast<float>(Picture.Width) / static_cast<float>(Picture.Height));
	const FRenderResult Drawn = Renderer->Render(Scene, Picture.Width, Picture.Height);
	if (!Drawn.IsOk())
	{
		return Drawn.Error;
	}
	FString Error;
	WritePng(ToEngine(std::filesystem::absolute(Picture.File).string()), Drawn.Image.Width, Drawn.Image.Height, 4, 8,
		Drawn.Image.Pixels.data(), &Error);
	return ToStd(Error);
}

std::vector<FUpdateRow> FEditorDriver::CollectRows() const
{
	return CollectUpdateRows(*GetEditor(), ConvertMilliseconds);
}

} // namespace Host
