// SPDX-License-Identifier: MIT
#include "Zef/Keys.h"

#include "OwnFile.h"

#include <zmq.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace Zef
{

namespace
{
constexpr const char* FirstLine = "zef-tandem keys 1";
constexpr std::size_t KeyLength = 40;

const char* NameOf(ELinkEnd End)
{
	return End == ELinkEnd::Application ? "application" : "editor";
}

FLinkFault Refused(std::string Message)
{
	return MakeFault(EFault::KeysRefused, "", std::move(Message));
}

struct FPair
{
	std::string Public;
	std::string Secret;
};

bool MakePair(FPair& Pair)
{
	std::array<char, KeyLength + 1> Public{};
	std::array<char, KeyLength + 1> Secret{};
	if (zmq_curve_keypair(Public.data(), Secret.data()) != 0)
	{
		return false;
	}
	Pair = {Public.data(), Secret.data()};
	return true;
}

std::string TextOf(ELinkEnd End, const FPair& Own, const FPair& Other)
{
	return std::string(FirstLine) + "\nend " + NameOf(End) + "\npublic " + Own.Public + "\nsecret " + Own.Secret +
		   "\nother " + Other.Public + "\n";
}

/** A key that ZeroMQ can read back into 32 bytes. */
bool IsKey(const std::string& Text)
{
	std::array<std::uint8_t, 32> Bytes{};
	return Text.size() == KeyLength && zmq_z85_decode(Bytes.data(), Text.c_str()) != nullptr;
}
} // namespace

FKeyFiles KeyFilesOf(const std::string& Name)
{
	return {Name + ".application.keys", Name + ".editor.keys"};
}

TResult<FKeyFiles> MakeKeyFiles(const std::string& Name)
{
	if (Name.empty())
	{
		return Refused("The key files need a name.");
	}
	FPair Application;
	FPair Editor;
	if (zmq_has("curve") == 0 || !MakePair(Application) || !MakePair(Editor))
	{
		return Refused("This build of ZeroMQ has no CURVE, so there can be no keys; install one with libsodium.");
	}
	FKeyFiles Files = KeyFilesOf(Name);
	if (FLinkFault Fault =
			WriteOwnFile(Files.Application, TextOf(ELinkEnd::Application, Application, Editor), EFault::KeysRefused))
	{
		return Fault;
	}
	if (FLinkFault Fault =
			WriteOwnFile(Files.Editor, TextOf(ELinkEnd::Editor, Editor, Application), EFault::KeysRefused))
	{
		std::error_code Ignored;
		std::filesystem::remove(Files.Application, Ignored);
		return Fault;
	}
	return Files;
}

TResult<FLinkKeys> LoadKeys(const std::string& Path, ELinkEnd End)
{
	const TResult<std::string> Text = ReadOwnFile(Path, EFault::KeysRefused);
	if (!Text)
	{
		return Text.Fault();
	}
	std::istringstream Lines(*Text);
	std::string Line;
	if (!std::getline(Lines, Line) || Line != FirstLine)
	{
		return Refused("\"" + Path + "\" is no key file: it does not begin with \"" + FirstLine + "\".");
	}
	FLinkKeys Keys;
	std::string Of;
	while (std::getline(Lines, Line))
	{
		const std::size_t Space = Line.find(' ');
		const std::string Word = Line.substr(0, Space);
		const std::string Value = Space == std::string::npos ? "" : Line.substr(Space + 1);
		std::string* const Place = Word == "end"	  ? &Of
								   : Word == "public" ? &Keys.PublicKey
								   : Word == "secret" ? &Keys.SecretKey
								   : Word == "other"  ? &Keys.OtherPublicKey
													  : nullptr;
		if (Place == nullptr)
		{
			return Refused("\"" + Path + "\" is no key file: it has a line that begins with \"" + Word + "\".");
		}
		*Place = Value;
	}
	if (!IsKey(Keys.PublicKey) || !IsKey(Keys.SecretKey) || !IsKey(Keys.OtherPublicKey))
	{
		return Refused("\"" + Path + "\" is damaged: it needs three keys of 40 characters; make a new pair.");
	}
	if (Of != NameOf(End))
	{
		return Refused("\"" + Path + "\" is the file of the " +
					   (Of == NameOf(ELinkEnd::Editor) ? "editor" : "other end") + "; this end needs the file of the " +
					   NameOf(End) + ".");
	}
	return Keys;
}

std::string KeyFileOr(const std::string& Path)
{
	const char* const Named = std::getenv(KeysVariable);
	return !Path.empty() || Named == nullptr ? Path : Named;
}

} // namespace Zef
