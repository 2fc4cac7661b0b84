// SPDX-License-Identifier: MIT
/** Command line of the header tool: reads the headers of a module, writes what changed. */
#include "Diagnostics.h"
#include "HeaderParser.h"
#include "Writers.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace HeaderTool
{
namespace
{

namespace fs = std::filesystem;

const char* const Usage =
	"usage: zef-header-tool --module Name --package /Script/Name --out DIR HEADER...\n"
	"\n"
	"Reads the headers of one module and writes DIR/<Header>.generated.h for each header that includes one,\n"
	"and DIR/<Name>.gen.cpp. Headers without reflected types are ignored. Outputs that did not change are left alone.\n"
	"\n"
	"  --module NAME   name of the module\n"
	"  --package PATH  package of its types; /Script/NAME when left out\n"
	"  --out DIR       folder of the outputs, made when missing\n"
	"  --help          print this\n";

struct FOptions
{
	FModule Module;
	fs::path Out;
	std::vector<fs::path> Headers;
};

class FUsageError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

FOptions ParseCommandLine(int Count, char** Arguments)
{
	FOptions Options;
	for (int At = 1; At < Count; ++At)
	{
		const std::string Argument = Arguments[At];
		if (Argument.rfind("--", 0) != 0)
		{
			Options.Headers.push_back(fs::absolute(Argument).lexically_normal());
			continue;
		}
		if (Argument != "--module" && Argument != "--package" && Argument != "--out")
		{
			throw FUsageError("unknown option " + Argument);
		}
		if (At + 1 == Count)
		{
			throw FUsageError(Argument + " needs a value");
		}
		const std::string Value = Arguments[++At];
		if (Argument == "--out")
		{
			Options.Out = Value;
		}
		else
		{
			(Argument == "--module" ? Options.Module.Name : Options.Module.Package) = Value;
		}
	}
	if (Options.Module.Name.empty() || Options.Out.empty())
	{
		throw FUsageError("--module and --out are needed");
	}
	if (Options.Module.Package.empty())
	{
		Options.Module.Package = "/Script/" + Options.Module.Name;
	}
	return Options;
}

std::optional<std::string> ReadFile(const fs::path& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	if (!Stream)
	{
		return std::nullopt;
	}
	std::ostringstream Contents;
	Contents << Stream.rdbuf();
	return Contents.str();
}

/** Keeps the time stamp of a file that already holds `Text`. */
void WriteIfChanged(const fs::path& Path, const std::string& Text)
{
	if (ReadFile(Path) == Text)
	{
		return;
	}
	std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
	Stream << Text;
	Stream.flush();
	if (!Stream)
	{
		throw std::runtime_error(Path.string() + ": error: cannot be written");
	}
}

/** Most headers reflect nothing; they need not even be well formed to be passed over. */
bool MayBeReflected(const std::string& Text)
{
	for (const char* Mark : {".generated.h", "UCLASS(", "USTRUCT(", "UENUM("})
	{
		if (Text.find(Mark) != std::string::npos)
		{
			return true;
		}
	}
	return false;
}

void RequireUniqueNames(const FModule& Module)
{
	std::map<std::string, std::string> FileOf;
	for (const FHeader& Header : Module.Headers)
	{
		const auto [Other, bNew] = FileOf.try_emplace(Header.BaseName, Header.Path);
		if (!bNew)
		{
			throw FParseError(
				Header.Path, 1, "a reflected header of the same name is part of the module: " + Other->second);
		}
	}
}

/** @return 0, or 1 when a header was refused; each refusal is printed and nothing is written then. */
int Run(FOptions& Options)
{
	int Failures = 0;
	for (const fs::path& Path : Options.Headers)
	{
		try
		{
			const std::optional<std::string> Text = ReadFile(Path);
			if (!Text)
			{
				throw FParseError(Path.string(), 1, "cannot be read");
			}
			if (!MayBeReflected(*Text))
			{
				continue;
			}
			FHeader Header = ParseHeader(Path.string(), *Text);
			if (Header.bReflected)
			{
				Options.Module.Headers.push_back(std::move(Header));
			}
		}
		catch (const FParseError& Error)
		{
			std::fprintf(stderr, "%s\n", Error.what());
			++Failures;
		}
	}
	if (Failures > 0)
	{
		return 1;
	}
	RequireUniqueNames(Options.Module);
	fs::create_directories(Options.Out);
	for (const FHeader& Header : Options.Module.Headers)
	{
		WriteIfChanged(Options.Out / (Header.BaseName + ".generated.h"), WriteGeneratedHeader(Options.Module, Header));
	}
	WriteIfChanged(Options.Out / (Options.Module.Name + ".gen.cpp"), WriteGeneratedSource(Options.Module));
	return 0;
}

} // namespace
} // namespace HeaderTool

int main(int Count, char** Arguments)
{
	if (Count == 2 && std::string(Arguments[1]) == "--help")
	{
		std::fputs(HeaderTool::Usage, stdout);
		return 0;
	}
	try
	{
		HeaderTool::FOptions Options = HeaderTool::ParseCommandLine(Count, Arguments);
		return HeaderTool::Run(Options);
	}
	catch (const HeaderTool::FUsageError& Error)
	{
		std::fprintf(stderr, "zef-header-tool: %s\n\n%s", Error.what(), HeaderTool::Usage);
	}
	catch (const std::exception& Error)
	{
		std::fprintf(stderr, "%s\n", Error.what());
	}
	return 1;
}
