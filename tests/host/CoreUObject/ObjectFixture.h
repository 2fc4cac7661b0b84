// SPDX-License-Identifier: MIT
/** Environment of the tests of the object system. */
#pragma once

#include "Host/Assertions.h"
#include "Host/ObjectCensus.h"
#include "Host/ObjectSystem.h"
#include "TestObjects.h"

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <string>

inline std::string ToUtf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

inline void PrintTo(const FString& Text, std::ostream* Out)
{
	*Out << '"' << ToUtf8(Text) << '"';
}

inline void PrintTo(const FName& Name, std::ostream* Out)
{
	*Out << ToUtf8(Name.ToString());
}

/** What a failed assertion says, as an exception. */
class FAssertionFailed : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** Brings the object system up, turns failed assertions into exceptions, and finds objects that the test left over. */
class FObjectTest : public testing::Test
{
protected:
	FObjectTest()
		: FormerHandler(Host::SetAssertionHandler(
			  [](const Host::FAssertion& Assertion, void*) { throw FAssertionFailed(ToUtf8(Assertion.Message)); }))
	{
		Host::InitObjectSystem();
		Before = Host::TakeObjectCensus();
		UTestWitness::Events.Empty();
	}

	virtual void TearDown() override
	{
		CollectGarbage(RF_NoFlags);
		EXPECT_EQ(Host::CompareObjectCensus(Before, Host::TakeObjectCensus()), FString());
	}

	virtual ~FObjectTest() override { Host::SetAssertionHandler(FormerHandler.Handler, FormerHandler.Context); }

	Host::FObjectCensus Before;

private:
	Host::FAssertionHandlerBinding FormerHandler;
};

/** Message of the assertion that `Action` fails; empty when none does. */
template <typename ActionType>
std::string AssertionOf(ActionType Action)
{
	try
	{
		Action();
	}
	catch (const FAssertionFailed& Failure)
	{
		return Failure.what();
	}
	return {};
}
