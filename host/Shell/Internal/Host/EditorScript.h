// SPDX-License-Identifier: MIT
/** A list of commands and dialog answers, for work without a display. The format is told in docs/scripting.md. */
#pragma once

#include "Host/HeadlessEditor.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace Host
{

/** One line of a script, checked: the verb is known and its arguments are such as it takes. */
struct FScriptStep
{
	int Line = 0; // from 1
	std::string Verb;
	std::vector<std::string> Arguments;
};

struct FEditorScript
{
	std::string Name; // for messages
	std::vector<FScriptStep> Steps;
};

/**
 * Reads a script whole before anything of it runs.
 *
 * @return an error of one line with the script's name and the line, and what is allowed there; empty on success
 */
std::string ParseEditorScript(const std::string& Text, const std::string& Name, FEditorScript& OutScript);

/** The same for a file, which may be a path or "-" for the standard input. */
std::string LoadEditorScript(const std::filesystem::path& File, FEditorScript& OutScript);

/**
 * Boots an editor and runs the script in it up to its first error.
 *
 * @param Output  takes what the script prints
 * @return as ParseEditorScript
 */
std::string RunEditorScript(const FHeadlessOptions& Options, const FEditorScript& Script, std::ostream& Output);

/** One line for each verb, for people. */
std::string DescribeEditorScripts();

} // namespace Host
