// SPDX-License-Identifier: MIT
#include "Reach.h"

#include <cerrno>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace Zef
{

#ifdef _WIN32

FLinkReason TryToReach(const std::string&, const std::string&, std::chrono::milliseconds)
{
	// ZeroMQ's own attempt tells whether somebody is there; this system is not asked why not.
	return {};
}

#else

namespace
{
/** Error number of an attempt; 0 when somebody listens. */
int ErrorOfConnecting(const addrinfo& Place, std::chrono::milliseconds MaxWait)
{
	const int Probe = socket(Place.ai_family, Place.ai_socktype | SOCK_CLOEXEC | SOCK_NONBLOCK, Place.ai_protocol);
	if (Probe < 0)
	{
		return errno;
	}
	int Error = connect(Probe, Place.ai_addr, Place.ai_addrlen) == 0 ? 0 : errno;
	if (Error == EINPROGRESS)
	{
		pollfd Item{Probe, POLLOUT, 0};
		socklen_t Size = sizeof(Error);
		if (poll(&Item, 1, static_cast<int>(MaxWait.count())) <= 0)
		{
			Error = ETIMEDOUT;
		}
		else if (getsockopt(Probe, SOL_SOCKET, SO_ERROR, &Error, &Size) != 0)
		{
			Error = errno;
		}
	}
	close(Probe);
	return Error;
}
} // namespace

FLinkReason TryToReach(const std::string& Host, const std::string& Port, std::chrono::milliseconds MaxWait)
{
	addrinfo Wanted{};
	Wanted.ai_socktype = SOCK_STREAM;
	addrinfo* Places = nullptr;
	if (const int Error = getaddrinfo(Host.c_str(), Port.c_str(), &Wanted, &Places); Error != 0)
	{
		return {ELinkReason::NameUnknown, "The machine \"" + Host + "\" is not known: " + gai_strerror(Error) + "."};
	}
	int Error = ETIMEDOUT;
	for (const addrinfo* Place = Places; Place != nullptr && Error != 0; Place = Place->ai_next)
	{
		Error = ErrorOfConnecting(*Place, MaxWait);
	}
	freeaddrinfo(Places);
	if (Error == 0)
	{
		return {};
	}
	const std::string Reason = std::error_code(Error, std::generic_category()).message();
	if (Error == ECONNREFUSED)
	{
		return {ELinkReason::PortClosed, "The machine \"" + Host + "\" answers, its port " + Port + " is closed."};
	}
	return {ELinkReason::Unreachable, "Port " + Port + " of \"" + Host + "\" cannot be reached: " + Reason + "."};
}

#endif

} // namespace Zef
