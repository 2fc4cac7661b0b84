// SPDX-License-Identifier: MIT
/** Ends the program where an input breaks a promise, so that the fuzzer keeps the input. */
#pragma once

#include <cstdio>
#include <cstdlib>

#define REQUIRE(Expression)                                                                                            \
	do                                                                                                                 \
	{                                                                                                                  \
		if (!(Expression))                                                                                             \
		{                                                                                                              \
			std::fprintf(stderr, "%s:%d: not %s\n", __FILE__, __LINE__, #Expression);                                  \
			std::abort();                                                                                              \
		}                                                                                                              \
	} while (false)
