// SPDX-License-Identifier: MIT
#include "Components/PrimitiveComponent.h"
#include "Containers/StringConv.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFTandemEditor.h"
#include "EditorDriver.h"
#include "Framework/Docking/TabManager.h"
#include "Host/Docking.h"
#include "Host/EditorScript.h"
#include "Host/MultiBoxes.h"
#include "Toolkits/IToolkitHost.h"
#include "Widgets/Docking/SDockTab.h"

#include <map>
#include <ostream>

namespace Host
{

namespace
{

std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

class FScriptRunner
{
public:
	FScriptRunner(const FHeadlessOptions& Options, std::ostream& InOutput)
		: Editor(Options)
		, Timeout(Options.Timeout)
		, Output(InOutput)
	{
	}

	std::string Run(const FEditorScript& Script)
	{
		const std::string StartError = Editor.Start();
		if (!StartError.empty())
		{
			return StartError;
		}
		for (const FScriptStep& Step : Script.Steps)
		{
			const std::string Error = (this->*Actions.at(Step.Verb))(Step.Arguments);
			if (!Error.empty())
			{
				return Script.Name + ":" + std::to_string(Step.Line) + ": " + Error;
			}
		}
		if (Editor.GetDialogs().CountAnswersLeft() > 0)
		{
			return Script.Name + ": " + std::to_string(Editor.GetDialogs().CountAnswersLeft()) +
				   " of its answers met no dialog";
		}
		return {};
	}

private:
	using FWords = std::vector<std::string>;
	using FAction = std::string (FScriptRunner::*)(const FWords&);

	static const std::map<std::string, FAction> Actions;

	std::string Open(const FWords&) { return Editor.OpenEditor(); }
	std::string Close(const FWords&) { return Editor.CloseEditor(); }
	std::string Command(const FWords& Words) { return Editor.Execute(Words[0]); }
	std::string Select(const FWords& Words) { return Editor.Select(Words); }

	std::string Answer(const FWords& Words)
	{
		if (Words[0] == "warning")
		{
			Editor.GetDialogs().AnswerSuppressable({Words[1] != "cancel", Words[1] == "never-again"});
			return {};
		}
		static const std::map<std::string, EAppReturnType::Type> Answers = {{"ok", EAppReturnType::Ok},
			{"cancel", EAppReturnType::Cancel}, {"yes", EAppReturnType::Yes}, {"no", EAppReturnType::No},
			{"retry", EAppReturnType::Retry}, {"continue", EAppReturnType::Continue}};
		Editor.GetDialogs().AnswerMessage(Answers.at(Words[1]));
		return {};
	}

	std::string Wait(const FWords& Words)
	{
		const double Seconds = Words.size() > 1 ? std::stod(Words[1]) : Timeout;
		if (Words[0] == "connected")
		{
			return Editor.WaitForPeer(Seconds);
		}
		if (Words[0] == "update")
		{
			return Editor.WaitForArrivals(Seconds);
		}
		Editor.RunFor(Seconds);
		return {};
	}

	std::string Tab(const FWords& Words)
	{
		return Words[0] == "open" ? Editor.OpenTab(Words[1]) : Editor.CloseTab(Words[1]);
	}

	std::string Screenshot(const FWords& Words)
	{
		FPictureOptions Picture;
		Picture.File = Words[0];
		if (Words.size() == 3)
		{
			Picture.Width = std::stoi(Words[1]);
			Picture.Height = std::stoi(Words[2]);
		}
		return Editor.SavePicture(Picture);
	}

	std::string Print(const FWords& Words)
	{
		if (Words[0] == "messages")
		{
			for (const std::string& Message : Editor.GetDialogs().TakeMessages())
			{
				Output << Message << '\n';
			}
			return {};
		}
		if (!Editor.IsEditorOpen())
		{
			return "the editor is not open; open it first";
		}
		if (Words[0] == "objects")
		{
			Output << FormatUpdateTable(Editor.CollectRows());
		}
		else if (Words[0] == "tree")
		{
			return PrintTree();
		}
		else if (Words[0] == "tabs")
		{
			for (const TSharedRef<SDockTab>& Open : OpenTabs(*Editor.GetEditor()->GetAssociatedTabManager()))
			{
				Output << ToStd(Open->GetTabLabel().ToString()) << '\n';
			}
		}
		else
		{
			PrintToolBar();
		}
		return {};
	}

	/** A button without a label by its tool tip. The tool bar over the view is the view's own. */
	void PrintToolBar()
	{
		TArray<TSharedRef<SMultiBoxItem>> OfViewport;
		if (const TSharedPtr<SZEFTandemEditorViewport> Viewport = Editor.GetEditor()->GetViewport())
		{
			OfViewport = GetMultiBoxItems(Viewport.ToSharedRef());
		}
		for (const TSharedRef<SMultiBoxItem>& Item :
			GetMultiBoxItems(Editor.GetEditor()->GetToolkitHost()->GetParentWidget()))
		{
			if (OfViewport.Contains(Item))
			{
				continue;
			}
			if (Item->GetKind() == EMultiBoxItem::Button || Item->GetKind() == EMultiBoxItem::ComboButton)
			{
				const FText Label = Item->GetLabel();
				Output << ToStd(Label.IsEmpty() ? Item->GetToolTip().ToString() : Label.ToString())
					   << (Item->IsItemEnabled() ? "" : " (off)") << '\n';
			}
		}
	}

	std::string PrintTree()
	{
		const TSharedPtr<IZEFTandemTree> Tree = Editor.GetEditor()->GetTandemTree();
		if (!Tree.IsValid())
		{
			return "the tree of objects is not open; write: tab open \"Tandem Tree\"";
		}
		TArray<const UPrimitiveComponent*> Selected;
		for (const TSharedPtr<IZEFTandemTreeItem>& Item : Tree->GetSelectedItems())
		{
			Selected.Add(Item->GetPreviewSceneComponent());
		}
		for (const int Type : {2, 4, 8, 16})
		{
			for (const UPrimitiveComponent* const Component : Editor.GetEditor()->GetObjectComponents(Type))
			{
				Output << (Selected.Contains(Component) ? "* " : "  ") << DescribeObjectType(Type) << "  "
					   << ToStd(Component->GetName()) << '\n';
			}
		}
		return {};
	}

	FEditorDriver Editor;
	double Timeout;
	std::ostream& Output;
};

const std::map<std::string, FScriptRunner::FAction> FScriptRunner::Actions = {
	{"open", &FScriptRunner::Open},
	{"close", &FScriptRunner::Close},
	{"command", &FScriptRunner::Command},
	{"select", &FScriptRunner::Select},
	{"answer", &FScriptRunner::Answer},
	{"wait", &FScriptRunner::Wait},
	{"tab", &FScriptRunner::Tab},
	{"screenshot", &FScriptRunner::Screenshot},
	{"print", &FScriptRunner::Print},
};

} // namespace

std::string RunEditorScript(const FHeadlessOptions& Options, const FEditorScript& Script, std::ostream& Output)
{
	return FScriptRunner(Options, Output).Run(Script);
}

} // namespace Host
