// SPDX-License-Identifier: MIT
#include "SDetailsView.h"

#include "GameFramework/Actor.h"
#include "Internationalization/Internationalization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/Object.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

void SDetailsView::Construct(const FArguments&, const FDetailsViewArgs& InDetailsViewArgs)
{
	DetailsViewArgs = InDetailsViewArgs;
	Model = MakeUnique<Host::FDetailsModel>(DetailsViewArgs.NotifyHook);
	ChildSlot[SNullWidget::NullWidget];
}

void SDetailsView::SetObjects(const TArray<UObject*>& InObjects, bool bForceRefresh, bool bOverrideLock)
{
	TArray<TWeakObjectPtr<UObject>> Weak;
	for (UObject* const Object : InObjects)
	{
		if (Object)
		{
			Weak.Add(TWeakObjectPtr<UObject>(Object));
		}
	}
	SetObjects(Weak, bForceRefresh, bOverrideLock);
}

void SDetailsView::SetObjects(const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh, bool bOverrideLock)
{
	if (bLocked && !bOverrideLock)
	{
		return;
	}
	const bool bChanged = Objects != InObjects;
	Objects = InObjects;
	if (bChanged || bForceRefresh)
	{
		ForceRefresh();
	}
}

void SDetailsView::SetObject(UObject* InObject, bool bForceRefresh)
{
	TArray<TWeakObjectPtr<UObject>> Weak;
	if (InObject)
	{
		Weak.Add(TWeakObjectPtr<UObject>(InObject));
	}
	SetObjects(Weak, bForceRefresh, false);
}

void SDetailsView::ForceRefresh()
{
	Model->SetObjects(GetSelectedObjects());
	Invalidate(EInvalidateWidgetReason::Layout);
}

const TArray<TWeakObjectPtr<UObject>>& SDetailsView::GetSelectedObjects() const
{
	Objects.RemoveAll([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); });
	return Objects;
}

FText SDetailsView::GetTitle() const
{
	const TArray<TWeakObjectPtr<UObject>>& Living = GetSelectedObjects();
	if (Living.IsEmpty() || DetailsViewArgs.NameAreaSettings == FDetailsViewArgs::HideNameArea)
	{
		return FText::GetEmpty();
	}
	const bool bActors = Living[0]->IsA(AActor::StaticClass());
	if (!(DetailsViewArgs.NameAreaSettings &
			(bActors ? FDetailsViewArgs::ActorsUseNameArea : FDetailsViewArgs::ObjectsUseNameArea)))
	{
		return FText::GetEmpty();
	}
	return Living.Num() == 1 ? FText::FromString(Living[0]->GetName())
							 : FText::Format(LOCTEXT("ManySelected", "{0} objects"), FText::AsNumber(Living.Num()));
}

namespace Host
{
namespace
{
SDetailsView* AsDetailsView(const TSharedRef<SWidget>& Widget)
{
	return dynamic_cast<SDetailsView*>(&Widget.Get());
}
} // namespace

FDetailsModel* DetailsModelOf(const TSharedRef<SWidget>& Widget)
{
	SDetailsView* const View = AsDetailsView(Widget);
	return View ? &View->GetModel() : nullptr;
}

FText DetailsTitleOf(const TSharedRef<SWidget>& Widget)
{
	const SDetailsView* const View = AsDetailsView(Widget);
	return View ? View->GetTitle() : FText::GetEmpty();
}

bool DetailsViewHasSearch(const TSharedRef<SWidget>& Widget)
{
	const SDetailsView* const View = AsDetailsView(Widget);
	return View && View->GetArgs().bAllowSearch;
}

bool DetailsViewHasLock(const TSharedRef<SWidget>& Widget)
{
	const SDetailsView* const View = AsDetailsView(Widget);
	return View && View->GetArgs().bLockable;
}

void SetDetailsViewLocked(const TSharedRef<SWidget>& Widget, bool bLocked)
{
	if (SDetailsView* const View = AsDetailsView(Widget))
	{
		View->SetLocked(bLocked);
	}
}

float DetailsValueWidthOf(const TSharedRef<SWidget>& Widget)
{
	const SDetailsView* const View = AsDetailsView(Widget);
	return View ? View->GetArgs().ColumnWidth : FDetailsViewArgs().ColumnWidth;
}
} // namespace Host

TSharedRef<IDetailsView> FPropertyEditorModule::CreateDetailView(const FDetailsViewArgs& DetailsViewArgs)
{
	return SNew(SDetailsView, DetailsViewArgs);
}

IMPLEMENT_MODULE(FPropertyEditorModule, PropertyEditor)

#undef LOCTEXT_NAMESPACE
