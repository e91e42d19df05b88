#include "Faults/ConnectionDrop.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <charconv>
#include <filesystem>
#include <optional>
#include <system_error>

namespace quorvel::emulator
{
	namespace
	{
		struct Endpoint
		{
			std::string address;
			int port = 0;
		};

		std::optional<Endpoint> endpointOf(const sockaddr_storage& storage)
		{
			char text[INET6_ADDRSTRLEN] = {};
			if (storage.ss_family == AF_INET)
			{
				const auto& address = reinterpret_cast<const sockaddr_in&>(storage);
				inet_ntop(AF_INET, &address.sin_addr, text, sizeof text);
				return Endpoint{text, ntohs(address.sin_port)};
			}
			if (storage.ss_family == AF_INET6)
			{
				const auto& address = reinterpret_cast<const sockaddr_in6&>(storage);
				inet_ntop(AF_INET6, &address.sin6_addr, text, sizeof text);
				return Endpoint{text, ntohs(address.sin6_port)};
			}
			return std::nullopt;
		}

		/** Calls `visit` with each open descriptor until it returns true. */
		template <typename Visit>
		void forEachDescriptor(Visit visit)
		{
			std::error_code error;
			for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", error))
			{
				const std::string name = entry.path().filename().string();
				int descriptor = -1;
				if (std::from_chars(name.data(), name.data() + name.size(), descriptor).ec == std::errc() && visit(descriptor))
				{
					return;
				}
			}
		}

		/** Both ends of a connected socket; nothing for files, pipes and listening sockets. */
		std::optional<std::pair<Endpoint, Endpoint>> endsOf(int descriptor)
		{
			sockaddr_storage local{};
			sockaddr_storage peer{};
			socklen_t localSize = sizeof local;
			socklen_t peerSize = sizeof peer;
			if (getsockname(descriptor, reinterpret_cast<sockaddr*>(&local), &localSize) != 0
				|| getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &peerSize) != 0)
			{
				return std::nullopt;
			}
			std::optional<Endpoint> ours = endpointOf(local);
			std::optional<Endpoint> theirs = endpointOf(peer);
			if (!ours || !theirs)
			{
				return std::nullopt;
			}
			return std::pair(std::move(*ours), std::move(*theirs));
		}
	}

	int connectionSocket(const std::string& peerAddress, int peerPort, int localPort)
	{
		int found = -1;
		forEachDescriptor([&](int descriptor)
		{
			// A client socket of this same process has the server's port as its peer's, never as its own.
			const auto ends = endsOf(descriptor);
			if (ends && ends->first.port == localPort && ends->second.port == peerPort && ends->second.address == peerAddress)
			{
				found = descriptor;
			}
			return found >= 0;
		});
		return found;
	}

	void closeWithoutReply(int socket)
	{
		shutdown(socket, SHUT_RDWR);
	}

	void closeConnectionsTo(int localPort)
	{
		forEachDescriptor([&](int descriptor)
		{
			const auto ends = endsOf(descriptor);
			if (ends && ends->first.port == localPort)
			{
				shutdown(descriptor, SHUT_RDWR);
			}
			return false;
		});
	}
}
