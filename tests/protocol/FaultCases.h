// SPDX-License-Identifier: MIT
/** One way to provoke each fault of the table. */
#pragma once

#include "Zef/Fault.h"

#include <functional>
#include <ostream>
#include <vector>

namespace LinkTest
{

struct FFaultCase
{
	/** A word that tells the cases of one code apart. */
	const char* Name;
	Zef::EFault Code;
	/** Where the report must point. */
	const char* Path;
	/** Provokes the fault, and returns the report. */
	std::function<Zef::FLinkFault()> Provoke;
};

/** How a test's parameter reads in its output. */
inline void PrintTo(const FFaultCase& Case, std::ostream* Out)
{
	*Out << Zef::FaultInfo(Case.Code).Name << " at \"" << Case.Path << "\"";
}

/** Faults of framing and structure. */
std::vector<FFaultCase> StructureFaultCases();
/** Faults of meaning. */
std::vector<FFaultCase> MeaningFaultCases();
/** Faults that only two connected ends can have. */
std::vector<FFaultCase> EndpointFaultCases();
/** Faults of addresses, keys, limits and recordings. */
std::vector<FFaultCase> AccessFaultCases();

} // namespace LinkTest
