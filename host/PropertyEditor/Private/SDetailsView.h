// SPDX-License-Identifier: MIT
// The details view: objects, and the model of their rows.
#pragma once

#include "DetailsViewArgs.h"
#include "Host/Details.h"
#include "IDetailsView.h"

class SDetailsView : public IDetailsView
{
public:
	SLATE_BEGIN_ARGS(SDetailsView) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FDetailsViewArgs& InDetailsViewArgs);

	void SetObjects(const TArray<UObject*>& InObjects, bool bForceRefresh, bool bOverrideLock) override;
	void SetObjects(const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh, bool bOverrideLock) override;
	void SetObject(UObject* InObject, bool bForceRefresh) override;
	void ForceRefresh() override;
	const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const override;
	bool IsLocked() const override { return bLocked; }

	Host::FDetailsModel& GetModel() { return *Model; }
	const FDetailsViewArgs& GetArgs() const { return DetailsViewArgs; }
	void SetLocked(bool bInLocked) { bLocked = bInLocked && DetailsViewArgs.bLockable; }
	FText GetTitle() const;

private:
	FDetailsViewArgs DetailsViewArgs;
	TUniquePtr<Host::FDetailsModel> Model;
	mutable TArray<TWeakObjectPtr<UObject>> Objects; // the dead leave when it is asked for
	bool bLocked = false;
};
