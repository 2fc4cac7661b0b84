// SPDX-License-Identifier: MIT
#include "RunScript.h"

#include "Host/EditorScript.h"

#include <fmt/core.h>

#include <cstdlib>
#include <iostream>
#include <string>

int RunScript(const Host::FHeadlessOptions& Editor, const std::filesystem::path& File)
{
	Host::FEditorScript Script;
	std::string Error = Host::LoadEditorScript(File, Script);
	if (Error.empty())
	{
		Error = Host::RunEditorScript(Editor, Script, std::cout);
	}
	if (!Error.empty())
	{
		std::cout.flush();
		fmt::print(stderr, "zef-tandem: {}\n", Error);
		return EXIT_FAILURE;
	}
	return EXIT_SUCCESS;
}
