// SPDX-License-Identifier: MIT
/** Other processes of a measurement. */
#pragma once

#include <functional>
#include <string>
#include <sys/types.h>

namespace Bench
{

/** A copy of this program that does one thing; ended with the object. Make it before anything starts a thread. */
class FChildProcess
{
public:
	/** Body runs in the child with a socket to the parent and returns when that is closed; then the child ends. */
	explicit FChildProcess(const std::function<void(int Socket)>& Body);
	~FChildProcess();

	FChildProcess(const FChildProcess&) = delete;
	FChildProcess& operator=(const FChildProcess&) = delete;

	/** This end of the socket. */
	int Socket() const { return Descriptor; }
	/** Waits until the child says that it is ready. */
	bool WaitForByte() const;

private:
	int Descriptor = -1;
	pid_t Child = -1;
};

/** Most memory that this process ever had resident, in bytes. */
double PeakMemory();
/** What it has resident now. */
double PresentMemory();

/** A socket file's name for this run, as an endpoint of ZeroMQ's. */
std::string FreshEndpoint(const char* Name);

} // namespace Bench
