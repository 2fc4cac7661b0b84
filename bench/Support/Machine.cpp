// SPDX-License-Identifier: MIT
#include "Support/Machine.h"
#include "Rivals/Rivals.h"

#include <cstdlib>
#include <fstream>
#include <sys/utsname.h>
#include <thread>

namespace Bench
{

namespace
{

/** What stands behind the first line of a file that begins with Key and a colon; empty when there is none. */
std::string FieldOf(const char* File, const std::string& Key)
{
	std::ifstream Stream(File);
	for (std::string Line; std::getline(Stream, Line);)
	{
		if (Line.starts_with(Key))
		{
			const std::size_t Colon = Line.find(':');
			const std::size_t First = Line.find_first_not_of(" \t", Colon + 1);
			return First == std::string::npos ? std::string() : Line.substr(First);
		}
	}
	return {};
}

std::string LoadAverage()
{
	double Load[1] = {0};
	char Buffer[32];
	std::snprintf(Buffer, sizeof(Buffer), "%.1f", getloadavg(Load, 1) == 1 ? Load[0] : 0.0);
	return Buffer;
}

/** Names and versions of the rivals that are built in, each after a comma. */
std::string RivalVersions()
{
	std::string Text;
#ifdef ZEF_BENCH_HAS_OpenMesh
	Text += ", " + OpenMeshVersion();
#endif
#ifdef ZEF_BENCH_HAS_CGAL
	Text += ", " + CgalVersion();
#endif
#ifdef ZEF_BENCH_HAS_Meshoptimizer
	Text += ", " + MeshoptimizerVersion();
#endif
#ifdef ZEF_BENCH_HAS_Assimp
	Text += ", " + AssimpVersion();
#endif
	return Text;
}

} // namespace

std::string DescribeMachine()
{
	utsname System = {};
	uname(&System);
	std::string Text = "- Processor: " + FieldOf("/proc/cpuinfo", "model name") + ", family " +
					   FieldOf("/proc/cpuinfo", "cpu family") + " model " + FieldOf("/proc/cpuinfo", "model") + ", " +
					   std::to_string(std::thread::hardware_concurrency()) + " cores\n";
	Text += "- Memory: " + FieldOf("/proc/meminfo", "MemTotal") + "; " + System.sysname + " " + System.release + "\n";
	Text += std::string("- Compiler: ") + ZEF_BENCH_COMPILER + ", " + ZEF_BENCH_FLAGS + "; rivals -O3 -DNDEBUG\n";
	Text += std::string("- Google Benchmark ") + ZEF_BENCH_LIBRARY + RivalVersions() + "\n";
	Text += "- Load average at the start: " + LoadAverage() + "\n\n";
	return Text;
}

} // namespace Bench
