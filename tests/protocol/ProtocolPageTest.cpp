// SPDX-License-Identifier: MIT
// What docs/protocol.md says about bytes is what the library does.
#include "SampleRecords.h"
#include "Zef/Wire.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace
{
/** The text between two comments of the page. */
std::string Part(const std::string& Name)
{
	std::ifstream File(std::string(ZEF_SOURCE_DIR) + "/docs/protocol.md");
	std::stringstream Text;
	Text << File.rdbuf();
	const std::string Page = Text.str();
	const std::string Begin = "<!-- " + Name + " -->\n";
	const std::size_t First = Page.find(Begin);
	const std::size_t Last = Page.find("<!-- /" + Name + " -->");
	return First == std::string::npos || Last == std::string::npos
			   ? ""
			   : Page.substr(First + Begin.size(), Last - First - Begin.size());
}

std::string Hexadecimal(const Zef::FBytes& Bytes)
{
	std::stringstream Text;
	for (std::size_t Index = 0; Index < Bytes.size(); ++Index)
	{
		static constexpr char Digits[] = "0123456789abcdef";
		Text << (Index == 0			  ? ""
					: Index % 24 == 0 ? "\n           "
									  : " ")
			 << Digits[Bytes[Index] >> 4] << Digits[Bytes[Index] & 15];
	}
	return Text.str();
}

std::string Message(const char* Arrow, const char* Name, const Zef::FPrefix& Prefix, const Zef::FBytes& Body)
{
	const auto Bytes = Zef::EncodePrefix(Prefix);
	std::string Text = std::string(Arrow) + " " + Name + "\n";
	Text += "  prefix   " + Hexadecimal({Bytes.begin(), Bytes.end()}) + "\n";
	return Body.empty() ? Text : Text + "  table    " + Hexadecimal(Body) + "\n";
}

TEST(ProtocolPage, ShowsTheBytesOfAFirstConversation)
{
	using Zef::EFrame;
	const Zef::FBytes Request = Zef::EncodeAvailabilityRequest().Header;
	const Zef::FBytes Reply = Zef::EncodeAvailability({false, true, false, true, true}).Header;
	std::string Expected = "```\n";
	Expected += Message("editor >", "Hello, version 1 to 2, \"editor\"", {EFrame::Hello, 0, 0},
		Zef::EncodeHello({1, 2, "editor", 16 << 20, 4 << 20}));
	Expected += Message("< application", "Welcome, version 2, \"application\"", {EFrame::Welcome, 0, 0},
		Zef::EncodeWelcome({2, "application", 16 << 20, 4 << 20}));
	Expected += Message("editor >", "Item 1, AvailabilityRequest", {EFrame::Item, 1, 0}, Request);
	Expected += Message("< application", "Credit of the request's bytes", {EFrame::Credit, 0, Request.size()}, {});
	Expected += Message("< application", "Item 1, AvailabilityReply", {EFrame::Item, 1, 0}, Reply);
	Expected += Message("editor >", "Credit of the reply's bytes", {EFrame::Credit, 0, Reply.size()}, {});
	Expected += "```\n";
	EXPECT_EQ(Part("conversation"), Expected);
}
} // namespace
