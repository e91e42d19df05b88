// Serves the preview's page and its small API on 127.0.0.1. Requests arrive on the server's own
// threads; everything they ask of the scene is handed to the game thread and answered from there.
#pragma once

#include "PreviewScene.h"

#include <httplib.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

class FHttpManager;

class FPreviewServer
{
public:
	/** Must be made on the game thread, while the scene's engine runs. */
	FPreviewServer(FPreviewScene& InScene, const std::filesystem::path& WebRoot);
	~FPreviewServer();

	/** Binds 127.0.0.1 (0 picks a free port), starts serving and returns the port; throws when it cannot. */
	int Start(int Port);

	/** Stops serving: waiting requests are answered at once, and no new one reaches the scene. */
	void Stop();

private:
	using FReply = std::function<void(FPreviewJson)>;

	/** Runs Work on the game thread and waits for the reply it gives (now or later); empty when closing or too slow. */
	std::optional<FPreviewJson> OnGameThread(std::function<void(FReply)> Work, std::chrono::seconds Timeout);
	void Answer(httplib::Response& Response, const std::optional<FPreviewJson>& Reply);

	FPreviewScene& Scene;
	FHttpManager& GameThreadTasks;
	httplib::Server Server;
	std::thread Serving;

	std::mutex Mutex;
	bool bClosing = false;
	uint64 LastCallId = 0;
	/** Replies still awaited, so that Stop can answer them. */
	std::map<uint64, FReply> Waiting;
};
