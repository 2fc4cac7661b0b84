// SPDX-License-Identifier: MIT
#include "DetailsViewArgs.h"
#include "EngineFixture.h"
#include "IDetailsView.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "UObject/Package.h"
#include "Components/SceneComponent.h"

using DetailsView = FEngineFixture;

TEST_F(DetailsView, ShowsObjectsAndLetsThemDie)
{
	FPropertyEditorModule& Module = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	const TSharedRef<IDetailsView> View = Module.CreateDetailView(FDetailsViewArgs());
	EXPECT_EQ(View->GetSelectedObjects().Num(), 0);

	USceneComponent* const A = NewObject<USceneComponent>();
	USceneComponent* const B = NewObject<USceneComponent>();
	View->SetObjects(TArray<UObject*>({A, B}));
	ASSERT_EQ(View->GetSelectedObjects().Num(), 2);
	EXPECT_EQ(View->GetSelectedObjects()[0].Get(), A);
	View->SetObject(B);
	ASSERT_EQ(View->GetSelectedObjects().Num(), 1);
	EXPECT_EQ(View->GetSelectedObjects()[0].Get(), B);

	CollectAll();
	EXPECT_EQ(View->GetSelectedObjects().Num(), 0);
	View->SetObject(nullptr);
	EXPECT_EQ(View->GetSelectedObjects().Num(), 0);
}
