// SPDX-License-Identifier: MIT
/** zef-bench SUBJECT [--tables FILE] [--repetitions N]: measures one subject and prints its tables. */

#include "Subjects/Subjects.h"
#include "Support/Comparison.h"
#include "Support/EngineSession.h"
#include "Support/Machine.h"
#include "Zef/Peer/FilesReader.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <vector>

namespace
{

struct FSubject
{
	const char* Name;
	void (*Measure)(Bench::FSuite&);
};

constexpr FSubject Subjects[] = {{"dynamic-mesh", &Bench::MeasureDynamicMesh},
	{"skeletal-mesh", &Bench::MeasureSkeletalMesh}, {"checker", &Bench::MeasureChecker}, {"link", &Bench::MeasureLink},
	{"road", &Bench::MeasureRoad}};

int Usage()
{
	std::fprintf(stderr, "usage: zef-bench machine | SUBJECT [--tables FILE] [--repetitions N]\nsubjects:");
	for (const FSubject& Subject : Subjects)
	{
		std::fprintf(stderr, " %s", Subject.Name);
	}
	std::fprintf(stderr, "\nFILE receives what is printed, at its end. N is 9 if not said otherwise. Other options are "
						 "Google Benchmark's.\n");
	return 2;
}

void Put(const std::string& Text, const char* File)
{
	std::fputs(Text.c_str(), stdout);
	std::fflush(stdout);
	if (File != nullptr)
	{
		std::ofstream(File, std::ios::app) << Text;
	}
}

} // namespace

int main(int ArgumentCount, char** Arguments)
{
	// Model files are read in a process of their own, which is this program again.
	if (const int Status = Zef::Peer::MaybeRunModelReader(ArgumentCount, Arguments); Status >= 0)
	{
		return Status;
	}
	if (ArgumentCount < 2)
	{
		return Usage();
	}
	const char* const Name = Arguments[1];
	const char* File = nullptr;
	int Repetitions = 9;
	std::vector<char*> Rest = {Arguments[0]};
	char Interleave[] = "--benchmark_enable_random_interleaving=true";
	Rest.push_back(Interleave);
	for (int Index = 2; Index < ArgumentCount; ++Index)
	{
		if (std::strcmp(Arguments[Index], "--tables") == 0 && Index + 1 < ArgumentCount)
		{
			File = Arguments[++Index];
		}
		else if (std::strcmp(Arguments[Index], "--repetitions") == 0 && Index + 1 < ArgumentCount)
		{
			Repetitions = std::max(1, std::atoi(Arguments[++Index]));
		}
		else
		{
			Rest.push_back(Arguments[Index]);
		}
	}
	if (std::strcmp(Name, "machine") == 0)
	{
		Put(Bench::DescribeMachine(), File);
		return 0;
	}
	for (const FSubject& Subject : Subjects)
	{
		if (std::strcmp(Name, Subject.Name) == 0)
		{
			int RestCount = static_cast<int>(Rest.size());
			benchmark::Initialize(&RestCount, Rest.data());
			bool bAgreed = false;
			{
				Bench::FSuite Suite;
				Subject.Measure(Suite);
				bAgreed = Suite.Run(Repetitions);
				Put(Suite.Tables(), File);
			}
			// What was timed is held by the suite and by the benchmarks.
			benchmark::ClearRegisteredBenchmarks();
			Bench::StopEngine();
			return bAgreed ? 0 : 1;
		}
	}
	return Usage();
}
