// SPDX-License-Identifier: MIT

#include "Framework/MultiBox/MultiBoxExtender.h"

#include "Framework/MultiBox/MultiBoxBuilder.h"

namespace
{
/** An addition for one kind of builder. */
template <typename BuilderType>
class TExtension : public FExtensionBase
{
public:
	TExtension(FName InHook, EExtensionHook::Position InPosition, const TSharedPtr<FUICommandList>& InCommandList,
		const TDelegate<void(BuilderType&)>& InDelegate)
		: Hook(InHook)
		, Position(InPosition)
		, CommandList(InCommandList)
		, Delegate(InDelegate)
	{
	}

	void Run(FName InHook, EExtensionHook::Position InPosition, BuilderType& Builder) const
	{
		if (bRunning || Hook != InHook || Position != InPosition || !Delegate.IsBound())
		{
			return;
		}
		const TGuardValue<bool> Guard(bRunning, true);
		if (CommandList.IsValid())
		{
			Builder.PushCommandList(CommandList.ToSharedRef());
		}
		Delegate.Execute(Builder);
		if (CommandList.IsValid())
		{
			Builder.PopCommandList();
		}
	}

private:
	FName Hook;
	EExtensionHook::Position Position;
	TSharedPtr<FUICommandList> CommandList;
	TDelegate<void(BuilderType&)> Delegate;
	mutable bool bRunning = false;
};

template <typename BuilderType>
void RunAll(TArray<TSharedPtr<const FExtensionBase>> Extensions, FName Hook, EExtensionHook::Position Position,
	BuilderType& Builder)
{
	for (const TSharedPtr<const FExtensionBase>& Extension : Extensions)
	{
		if (const auto* Matching = dynamic_cast<const TExtension<BuilderType>*>(Extension.Get()))
		{
			Matching->Run(Hook, Position, Builder);
		}
	}
}

template <typename BuilderType>
TSharedRef<const FExtensionBase> AddExtension(TArray<TSharedPtr<const FExtensionBase>>& Extensions, FName Hook,
	EExtensionHook::Position Position, const TSharedPtr<FUICommandList>& CommandList,
	const TDelegate<void(BuilderType&)>& Delegate)
{
	const TSharedRef<const FExtensionBase> Extension =
		MakeShared<TExtension<BuilderType>>(Hook, Position, CommandList, Delegate);
	Extensions.Add(Extension);
	return Extension;
}
} // namespace

TSharedRef<const FExtensionBase> FExtender::AddToolBarExtension(FName ExtensionHook,
	EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList,
	const FToolBarExtensionDelegate& ToolBarExtensionDelegate)
{
	return AddExtension<FToolBarBuilder>(
		Extensions, ExtensionHook, HookPosition, CommandList, ToolBarExtensionDelegate);
}

TSharedRef<const FExtensionBase> FExtender::AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
	const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate)
{
	return AddExtension<FMenuBuilder>(Extensions, ExtensionHook, HookPosition, CommandList, MenuExtensionDelegate);
}

TSharedRef<const FExtensionBase> FExtender::AddMenuBarExtension(FName ExtensionHook,
	EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList,
	const FMenuBarExtensionDelegate& MenuBarExtensionDelegate)
{
	return AddExtension<FMenuBarBuilder>(
		Extensions, ExtensionHook, HookPosition, CommandList, MenuBarExtensionDelegate);
}

void FExtender::RemoveExtension(const TSharedRef<const FExtensionBase>& Extension)
{
	Extensions.Remove(Extension);
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const
{
	RunAll(Extensions, ExtensionHook, HookPosition, MenuBuilder);
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBarBuilder& MenuBarBuilder) const
{
	RunAll(Extensions, ExtensionHook, HookPosition, MenuBarBuilder);
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FToolBarBuilder& ToolBarBuilder) const
{
	RunAll(Extensions, ExtensionHook, HookPosition, ToolBarBuilder);
}

TSharedRef<FExtender> FExtender::Combine(const TArray<TSharedPtr<FExtender>>& Extenders)
{
	const TSharedRef<FExtender> Combined = MakeShared<FExtender>();
	for (const TSharedPtr<FExtender>& Extender : Extenders)
	{
		if (Extender.IsValid())
		{
			Combined->Extensions.Append(Extender->Extensions);
		}
	}
	return Combined;
}
