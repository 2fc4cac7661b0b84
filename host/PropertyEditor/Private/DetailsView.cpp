// SPDX-License-Identifier: MIT
#include "IDetailsView.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/Object.h"
#include "Widgets/SNullWidget.h"

namespace
{
class SDetailsView : public IDetailsView
{
public:
	SLATE_BEGIN_ARGS(SDetailsView) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&, const FDetailsViewArgs& InDetailsViewArgs)
	{
		DetailsViewArgs = InDetailsViewArgs;
		ChildSlot[SNullWidget::NullWidget];
	}

	void SetObjects(const TArray<UObject*>& InObjects, bool bForceRefresh, bool bOverrideLock) override
	{
		TArray<TWeakObjectPtr<UObject>> Weak;
		for (UObject* const Object : InObjects)
		{
			Weak.Add(TWeakObjectPtr<UObject>(Object));
		}
		SetObjects(Weak, bForceRefresh, bOverrideLock);
	}

	void SetObjects(const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh, bool bOverrideLock) override
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

	void SetObject(UObject* InObject, bool bForceRefresh) override
	{
		TArray<TWeakObjectPtr<UObject>> Weak;
		if (InObject)
		{
			Weak.Add(TWeakObjectPtr<UObject>(InObject));
		}
		SetObjects(Weak, bForceRefresh, false);
	}

	void ForceRefresh() override { Invalidate(EInvalidateWidgetReason::Layout); }

	const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const override
	{
		Objects.RemoveAll([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); });
		return Objects;
	}

	bool IsLocked() const override { return bLocked; }

private:
	FDetailsViewArgs DetailsViewArgs;
	mutable TArray<TWeakObjectPtr<UObject>> Objects; // the dead leave when it is asked for
	bool bLocked = false;
};
} // namespace

TSharedRef<IDetailsView> FPropertyEditorModule::CreateDetailView(const FDetailsViewArgs& DetailsViewArgs)
{
	return SNew(SDetailsView, DetailsViewArgs);
}

IMPLEMENT_MODULE(FPropertyEditorModule, PropertyEditor)
