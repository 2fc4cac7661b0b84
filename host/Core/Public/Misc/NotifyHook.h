// SPDX-License-Identifier: MIT
/** Being told of edits in a details view. */
#pragma once

class FEditPropertyChain;
class FProperty;
struct FPropertyChangedEvent;

/** Every notification is optional. */
class FNotifyHook
{
public:
	virtual ~FNotifyHook() = default;
	virtual void NotifyPreChange(FProperty* /*PropertyAboutToChange*/) {}
	virtual void NotifyPostChange(
		const FPropertyChangedEvent& /*PropertyChangedEvent*/, FProperty* /*PropertyThatChanged*/)
	{
	}
	virtual void NotifyPreChange(FEditPropertyChain* /*PropertyAboutToChange*/) {}
	virtual void NotifyPostChange(
		const FPropertyChangedEvent& /*PropertyChangedEvent*/, FEditPropertyChain* /*PropertyThatChanged*/)
	{
	}
};
