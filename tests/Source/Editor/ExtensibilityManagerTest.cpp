// SPDX-License-Identifier: MIT
#include "Editor/ZEFExtensibilityManager.h"

#include "EngineFixture.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "UObject/Package.h"

namespace
{

TSharedRef<FExtender> MakeExtender(std::vector<std::string>& Calls, const std::string& Name)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddToolBarExtension("Hook", EExtensionHook::After, nullptr,
		FToolBarExtensionDelegate::CreateLambda([&Calls, Name](FToolBarBuilder&) { Calls.push_back(Name); }));
	return Extender;
}

class ExtensibilityManager : public FEngineFixture
{
protected:
	/** What the extender adds at the hook, by name. */
	std::vector<std::string> Apply(const TSharedPtr<FExtender>& Extender)
	{
		Calls.clear();
		FToolBarBuilder Builder(Commands, FMultiBoxCustomization::None);
		Extender->Apply("Hook", EExtensionHook::After, Builder);
		return Calls;
	}

	const TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	const TArray<UObject*> Objects = {GetTransientPackage()};
	std::vector<std::string> Calls;
	FZEFExtensibilityManager Manager;
};

} // namespace

TEST_F(ExtensibilityManager, GivesAValidEmptyExtenderOfNothing)
{
	ASSERT_TRUE(Manager.GetAllExtenders().IsValid());
	ASSERT_TRUE(Manager.GetAllExtenders(Commands, Objects).IsValid());
	EXPECT_EQ(Apply(Manager.GetAllExtenders()), std::vector<std::string>());
	EXPECT_EQ(Apply(Manager.GetAllExtenders(Commands, Objects)), std::vector<std::string>());
}

TEST_F(ExtensibilityManager, CombinesWhatWasAddedInItsOrder)
{
	Manager.AddExtender(MakeExtender(Calls, "first"));
	Manager.AddExtender(MakeExtender(Calls, "second"));

	EXPECT_EQ(Apply(Manager.GetAllExtenders()), (std::vector<std::string>{"first", "second"}));
}

TEST_F(ExtensibilityManager, RemovesEveryEntryThatEqualsTheArgument)
{
	const TSharedRef<FExtender> Twice = MakeExtender(Calls, "twice");
	Manager.AddExtender(Twice);
	Manager.AddExtender(MakeExtender(Calls, "once"));
	Manager.AddExtender(Twice);
	Manager.RemoveExtender(Twice);

	EXPECT_EQ(Apply(Manager.GetAllExtenders()), (std::vector<std::string>{"once"}));
}

TEST_F(ExtensibilityManager, AsksBoundDelegatesInOrderBehindWhatWasAdded)
{
	Manager.GetExtenderDelegates().Add(
		FZEFEditorExtender::CreateLambda([this](const TSharedRef<FUICommandList> List, const TArray<UObject*>& Asked)
			{ return MakeExtender(Calls, List == Commands && Asked == Objects ? "delegate" : "wrong arguments"); }));
	Manager.GetExtenderDelegates().Add(FZEFEditorExtender());
	Manager.GetExtenderDelegates().Add(FZEFEditorExtender::CreateLambda(
		[this](const TSharedRef<FUICommandList>, const TArray<UObject*>&) { return MakeExtender(Calls, "last"); }));
	Manager.AddExtender(MakeExtender(Calls, "added"));

	EXPECT_EQ(
		Apply(Manager.GetAllExtenders(Commands, Objects)), (std::vector<std::string>{"added", "delegate", "last"}));
	EXPECT_EQ(Apply(Manager.GetAllExtenders()), (std::vector<std::string>{"added"}));
	EXPECT_EQ(
		Apply(Manager.GetAllExtenders(Commands, Objects)), (std::vector<std::string>{"added", "delegate", "last"}));
}
