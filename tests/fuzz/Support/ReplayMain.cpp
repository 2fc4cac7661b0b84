// SPDX-License-Identifier: MIT
// Runs a fuzzer's function over kept inputs, with any compiler: files, and folders of files.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size);

namespace
{
bool Replay(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	if (!Stream)
	{
		std::fprintf(stderr, "%s cannot be read\n", File.c_str());
		return false;
	}
	const std::vector<char> Read{std::istreambuf_iterator<char>(Stream), {}};
	// A block of exactly the size: a read past its end is seen by the sanitizers.
	const std::vector<std::uint8_t> Input(Read.begin(), Read.end());
	LLVMFuzzerTestOneInput(Input.data(), Input.size());
	return true;
}
} // namespace

int main(int Count, char** Arguments)
{
	std::size_t Inputs = 0;
	for (int Argument = 1; Argument < Count; ++Argument)
	{
		const std::filesystem::path Path = Arguments[Argument];
		std::vector<std::filesystem::path> Files{Path};
		if (std::filesystem::is_directory(Path))
		{
			Files.clear();
			for (const auto& Entry : std::filesystem::directory_iterator(Path))
			{
				Files.push_back(Entry.path());
			}
		}
		for (const std::filesystem::path& File : Files)
		{
			if (!Replay(File))
			{
				return 1;
			}
			++Inputs;
		}
	}
	std::printf("%zu inputs\n", Inputs);
	return Inputs > 0 ? 0 : 1;
}
