// SPDX-License-Identifier: MIT
#include "Host/HeadlessEditor.h"

#include "Editor/ZEFTandemEditor.h"
#include "EditorDriver.h"
#include "Host/ObjectCensus.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{

class FHeadlessEditor::FImpl
{
public:
	explicit FImpl(const FHeadlessOptions& InOptions)
		: Options(InOptions)
		, Editor(InOptions)
	{
	}

	std::string Start()
	{
		const std::string Error = Editor.Start();
		return Error.empty() ? Editor.OpenEditor() : Error;
	}

	FUpdateOutcome Update()
	{
		FUpdateOutcome Outcome;
		Outcome.Error = Editor.WaitForPeer(Options.Timeout);
		Editor.GetDialogs().TakeMessages();
		if (Outcome.IsOk() && Options.bUnifiedMaterial != Editor.GetEditor()->IsUnifiedMaterial())
		{
			Outcome.Error = Editor.Execute("ZEFTandemEditor.SetUnifiedMaterial");
		}
		if (Outcome.IsOk())
		{
			Outcome.Error = Editor.Execute("ZEFTandemEditor.Update");
		}
		if (Outcome.IsOk())
		{
			Outcome.Error = Editor.WaitForArrivals(Options.Timeout);
		}
		if (Outcome.IsOk())
		{
			Outcome.Rows = Editor.CollectRows();
		}
		return Outcome;
	}

	FHeadlessOptions Options;
	FEditorDriver Editor;
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
	return Impl->Editor.SavePicture(Picture);
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
