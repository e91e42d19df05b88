// A real HTTP server on 127.0.0.1 and a port the system picks, for the module to talk to.
#pragma once

#include <httplib.h>

#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <thread>

class FLoopbackHttpServer
{
public:
	/** Binds at once, so that connections wait in the backlog until Start. */
	FLoopbackHttpServer();

	/** Lets blocked handlers go, then stops the server and joins its thread. */
	~FLoopbackHttpServer();

	/** Register handlers first: the server is not safe to change once it runs. */
	httplib::Server& Routes()
	{
		return Server;
	}

	void Start();

	int GetPort() const
	{
		return Port;
	}

	std::string Url(const std::string& Path) const;

	/** Distinct client connections that sent at least one request. */
	size_t NumConnections() const;

	/** For a handler: waits until Release (bounded, so a failing test cannot hang). */
	void WaitUntilReleased();
	void Release();

private:
	httplib::Server Server;
	int Port = 0;
	std::thread ListenThread;

	mutable std::mutex Mutex;
	std::condition_variable Released;
	bool bReleased = false;
	std::set<int> ClientPorts;
};

/** A loopback port that nothing listens on: bound by the system, then closed again. */
int FindClosedLoopbackPort();
