// SPDX-License-Identifier: MIT
// ZeroMQ is not built with ThreadSanitizer: how it hands messages from thread to thread is not seen, and what its calls
// read and write would look like races. libsodium decrypts for it on its threads.
extern "C" const char* __tsan_default_suppressions();

extern "C" const char* __tsan_default_suppressions()
{
	return "called_from_lib:libzmq.so\nrace:libzmq.so\nrace:libsodium.so\n";
}
