// SPDX-License-Identifier: MIT
/** Keys on sockets, and the one who decides which editor's key is admitted. */
#pragma once

#include "Zef/Keys.h"

#include <zmq.hpp>

namespace Zef
{

/** Before the editor's socket connects. */
void UseKeysAsEditor(zmq::socket_t& Socket, const FLinkKeys& Keys);

/** Before the application's socket binds; an FKeyCheck of the same context must stand. */
void UseKeysAsApplication(zmq::socket_t& Socket, const FLinkKeys& Keys);

/** Answers ZeroMQ's question, for each connection, whether its key is admitted. One for a context. */
class FKeyCheck
{
public:
	FKeyCheck(zmq::context_t& Context, const FLinkKeys& InKeys);

	zmq::socket_t& Socket() { return Questions; }

	/** Answers what is waiting. @return how many were turned away */
	std::size_t Answer();

private:
	zmq::socket_t Questions;
	std::string Admitted; // 32 bytes
};

} // namespace Zef
