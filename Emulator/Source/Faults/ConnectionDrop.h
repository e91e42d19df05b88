// Ends server connections from outside httplib, which hands its handlers no socket. A dropped reply
// is the connection ended with nothing written although the platform committed the change: what
// loses items in a client that does not retry with the same Idempotency-Key.
#pragma once

#include <string>

namespace quorvel::emulator
{
	/** This process's socket connected to peerAddress:peerPort from localPort, or -1 when none is
	    open: the two ends of a connection name it uniquely. */
	int connectionSocket(const std::string& peerAddress, int peerPort, int localPort);

	/** Shuts the socket down both ways, so the peer sees the connection end with nothing sent, and
	    the server's own later write fails with EPIPE (never a signal: httplib ignores SIGPIPE). */
	void closeWithoutReply(int socket);

	/** Shuts down every connection accepted on localPort, so that a server stopping does not wait
	    for idle kept-alive clients to time out. */
	void closeConnectionsTo(int localPort);
}
