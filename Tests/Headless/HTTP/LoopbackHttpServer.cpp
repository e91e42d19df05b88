#include "LoopbackHttpServer.h"

#include <arpa/inet.h>
#include <chrono>
#include <thread>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace
{
	constexpr std::chrono::seconds MaxBlockedHandlerTime(20);
}

FLoopbackHttpServer::FLoopbackHttpServer()
{
	Server.set_pre_routing_handler([this](const httplib::Request& Request, httplib::Response&)
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		ClientPorts.insert(Request.remote_port);
		return httplib::Server::HandlerResponse::Unhandled;
	});
	Port = Server.bind_to_any_port("127.0.0.1");
	EXPECT_GT(Port, 0);
}

FLoopbackHttpServer::~FLoopbackHttpServer()
{
	Release();
	Server.stop();
	if (ListenThread.joinable())
	{
		ListenThread.join();
	}
}

void FLoopbackHttpServer::Start()
{
	ListenThread = std::thread([this]()
	{
		Server.listen_after_bind();
	});
	// httplib's stop() does nothing to a server whose accept loop has not begun, and the loop would
	// then run for ever: return only once it runs, so that the destructor can always end it.
	const auto Deadline = std::chrono::steady_clock::now() + MaxBlockedHandlerTime;
	while (!Server.is_running() && std::chrono::steady_clock::now() < Deadline)
	{
		std::this_thread::yield();
	}
	EXPECT_TRUE(Server.is_running());
}

std::string FLoopbackHttpServer::Url(const std::string& Path) const
{
	return "http://127.0.0.1:" + std::to_string(Port) + Path;
}

size_t FLoopbackHttpServer::NumConnections() const
{
	std::lock_guard<std::mutex> Lock(Mutex);
	return ClientPorts.size();
}

void FLoopbackHttpServer::WaitUntilReleased()
{
	std::unique_lock<std::mutex> Lock(Mutex);
	Released.wait_for(Lock, MaxBlockedHandlerTime, [this]()
	{
		return bReleased;
	});
}

void FLoopbackHttpServer::Release()
{
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		bReleased = true;
	}
	Released.notify_all();
}

int FindClosedLoopbackPort()
{
	const int Socket = socket(AF_INET, SOCK_STREAM, 0);
	sockaddr_in Address{};
	Address.sin_family = AF_INET;
	Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
	Address.sin_port = 0;
	socklen_t Length = sizeof(Address);
	const bool bBound = bind(Socket, reinterpret_cast<sockaddr*>(&Address), sizeof(Address)) == 0
		&& getsockname(Socket, reinterpret_cast<sockaddr*>(&Address), &Length) == 0;
	close(Socket);
	EXPECT_TRUE(bBound);
	return ntohs(Address.sin_port);
}
