// SPDX-License-Identifier: MIT

#include "Host/Windows.h"

#include "Application/SlateApplicationBase.h"
#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlate, Log, All);

namespace Host
{
namespace
{
TArray<TFunction<void(const TSharedRef<SWindow>&)>> ModalAnswers;

/** A program without a screen: windows are there, and nobody sees them. */
class FHeadlessWindows : public IWindowSystem
{
public:
	void Show(const TSharedRef<SWindow>&) override {}
	void Hide(const TSharedRef<SWindow>&) override {}
	void Destroy(const TSharedRef<SWindow>&) override {}
	void BringToFront(const TSharedRef<SWindow>&) override {}
	void OpenMenu(const TSharedRef<IMenu>&, const TOptional<FVector2D>&) override {}
	void CloseMenu(const TSharedRef<IMenu>&) override {}

	void RunModal(const TSharedRef<SWindow>& Window) override
	{
		const bool bAnswered = ModalAnswers.Num() > 0;
		if (bAnswered)
		{
			const TFunction<void(const TSharedRef<SWindow>&)> Answer = ModalAnswers[0];
			ModalAnswers.RemoveAt(0);
			Answer(Window);
		}
		if (FWindowAccess::IsOpen(*Window))
		{
			UE_LOG(LogSlate, Log, TEXT("The window '%s' was closed: %s"), *Window->GetTitle().ToString(),
				bAnswered ? TEXT("its answer left it open") : TEXT("there is nobody to answer it"));
			Window->SetRequestDestroyWindowOverride(FRequestDestroyWindowOverride());
			Window->RequestDestroyWindow();
		}
	}
};

FHeadlessWindows Headless;
IWindowSystem* CurrentSystem = &Headless;
} // namespace

IWindowSystem* SetWindowSystem(IWindowSystem* System)
{
	IWindowSystem* const Former = CurrentSystem == &Headless ? nullptr : CurrentSystem;
	CurrentSystem = System ? System : &Headless;
	return Former;
}

IWindowSystem& GetWindowSystem()
{
	return *CurrentSystem;
}

void AnswerNextModalWindow(TFunction<void(const TSharedRef<SWindow>&)> Answer)
{
	ModalAnswers.Add(MoveTemp(Answer));
}

int32 NumModalAnswersLeft()
{
	return ModalAnswers.Num();
}

void ForgetModalAnswers()
{
	ModalAnswers.Empty();
}

void WindowWasActivated(const TSharedRef<SWindow>& Window)
{
	if (FSlateApplicationBase::IsInitialized())
	{
		FSlateApplicationBase::Get().OnWindowActivated(Window);
	}
}
} // namespace Host
