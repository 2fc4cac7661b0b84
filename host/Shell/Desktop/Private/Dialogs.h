// SPDX-License-Identifier: MIT
/** Message boxes and warnings as dialogs. */
#pragma once

#include "Host/DialogService.h"

#include <QPointer>

#include <vector>

class QDialog;
class QWidget;

namespace Host
{

/** Answers with what the user clicks. Dialogs stand before the window that was in front. */
class FDialogWindows : public IDialogService
{
public:
	/** Becomes the dialog service until its end. */
	FDialogWindows();
	virtual ~FDialogWindows() override;

	virtual EAppReturnType::Type OpenMessage(EAppMsgCategory Category, EAppMsgType::Type Type,
		EAppReturnType::Type Default, const FText& Message, const FText& Title) override;
	virtual FSuppressableAnswer OpenSuppressable(const FSuppressableRequest& Request) override;

	/** Whether a dialog of this service, or another modal one that was told by Enter, waits for its answer. */
	bool IsOpen() const { return Depth > 0; }

	/** Dismisses what is open, which gets the answer of the Escape key. */
	void DismissAll();

	/** Runs a modal dialog until it is answered. @return QDialog's result */
	int Run(QDialog& Dialog);

private:
	IDialogService* Former;
	std::vector<QPointer<QDialog>> Open;
	int Depth = 0;
};

} // namespace Host
