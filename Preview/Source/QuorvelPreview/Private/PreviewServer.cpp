#include "PreviewServer.h"

#include "HttpManager.h"
#include "HttpModule.h"

#include <future>
#include <stdexcept>

namespace
{
	constexpr const char* JsonType = "application/json";

	bool ReadPoint(const FPreviewJson& Body, const char* Key, FVector2D& Out)
	{
		const auto It = Body.find(Key);
		if (It == Body.end() || !It->is_object() || !(*It)["x"].is_number() || !(*It)["y"].is_number())
		{
			return false;
		}
		Out = FVector2D((*It)["x"].get<double>(), (*It)["y"].get<double>());
		return true;
	}

	FPreviewJson ParseBody(const httplib::Request& Request)
	{
		FPreviewJson Body = FPreviewJson::parse(Request.body, nullptr, false);
		return Body.is_object() ? Body : FPreviewJson::object();
	}

	void BadRequest(httplib::Response& Response, const std::string& Message)
	{
		Response.status = 400;
		Response.set_content(FPreviewJson{ { "error", Message } }.dump(), JsonType);
	}
}

FPreviewServer::FPreviewServer(FPreviewScene& InScene, const std::filesystem::path& WebRoot)
	: Scene(InScene)
	, GameThreadTasks(FHttpModule::Get().GetHttpManager())
{
	if (!Server.set_mount_point("/", WebRoot.string()))
	{
		throw std::runtime_error("the page's files are missing: " + WebRoot.string());
	}
	Server.set_tcp_nodelay(true);
	Server.set_default_headers({ { "Cache-Control", "no-store" } });

	Server.Get("/api/state", [this](const httplib::Request&, httplib::Response& Response)
	{
		Answer(Response, OnGameThread([this](FReply Reply) { Reply(Scene.State()); }, std::chrono::seconds(5)));
	});
	Server.Get("/api/layout", [this](const httplib::Request&, httplib::Response& Response)
	{
		Answer(Response, OnGameThread([this](FReply Reply) { Reply(Scene.Layout()); }, std::chrono::seconds(5)));
	});
	Server.Get("/api/frame.png", [this](const httplib::Request&, httplib::Response& Response)
	{
		// Filled on the game thread, read here once it answered: shared, as a late answer may outlive this request.
		const std::shared_ptr<std::string> Png = std::make_shared<std::string>();
		const std::optional<FPreviewJson> Frame = OnGameThread([this, Png](FReply Reply)
		{
			const TArray<uint8>& Bytes = Scene.GetFramePng();
			Png->assign(reinterpret_cast<const char*>(Bytes.GetData()), size_t(Bytes.Num()));
			Reply(FPreviewJson{ { "frame", Scene.GetFrameNumber() } });
		}, std::chrono::seconds(5));
		if (!Frame || Png->empty())
		{
			Response.status = 503;
			return;
		}
		Response.set_header("X-Frame", std::to_string((*Frame)["frame"].get<int64>()));
		Response.set_content(*Png, "image/png");
	});
	Server.Post("/api/pick", [this](const httplib::Request& Request, httplib::Response& Response)
	{
		FVector2D At;
		if (!ReadPoint(ParseBody(Request), "at", At))
		{
			return BadRequest(Response, "expected {\"at\": {\"x\", \"y\"}} in frame pixels");
		}
		Answer(Response, OnGameThread([this, At](FReply Reply) { Reply(Scene.Pick(At)); }, std::chrono::seconds(5)));
	});
	Server.Post("/api/hover", [this](const httplib::Request& Request, httplib::Response& Response)
	{
		const FPreviewJson Body = ParseBody(Request);
		FVector2D From;
		FVector2D To;
		if (!ReadPoint(Body, "from", From) || !ReadPoint(Body, "to", To))
		{
			return BadRequest(Response, "expected {\"from\": {\"x\", \"y\"}, \"to\": {\"x\", \"y\"}} in frame pixels");
		}
		Answer(Response, OnGameThread([this, From, To](FReply Reply) { Reply(Scene.Hover(From, To)); }, std::chrono::seconds(5)));
	});
	Server.Post("/api/drop", [this](const httplib::Request& Request, httplib::Response& Response)
	{
		const FPreviewJson Body = ParseBody(Request);
		FVector2D From;
		FVector2D To;
		if (!ReadPoint(Body, "from", From) || !ReadPoint(Body, "to", To))
		{
			return BadRequest(Response, "expected {\"from\": {\"x\", \"y\"}, \"to\": {\"x\", \"y\"}} in frame pixels");
		}
		Answer(Response, OnGameThread([this, From, To](FReply Reply) { Scene.Drop(From, To, MoveTemp(Reply)); }, std::chrono::seconds(30)));
	});
	Server.Put("/api/faults", [this](const httplib::Request& Request, httplib::Response& Response)
	{
		const FPreviewJson Body = ParseBody(Request);
		if (!Body.contains("enabled") || !Body["enabled"].is_boolean())
		{
			return BadRequest(Response, "expected {\"enabled\": true or false}");
		}
		const bool bEnabled = Body["enabled"].get<bool>();
		Answer(Response, OnGameThread([this, bEnabled](FReply Reply) { Reply(Scene.SetFaults(bEnabled)); }, std::chrono::seconds(5)));
	});
}

FPreviewServer::~FPreviewServer()
{
	Stop();
}

int FPreviewServer::Start(int Port)
{
	const int Bound = Port == 0 ? Server.bind_to_any_port("127.0.0.1") : (Server.bind_to_port("127.0.0.1", Port) ? Port : -1);
	if (Bound <= 0)
	{
		throw std::runtime_error("cannot listen on 127.0.0.1:" + std::to_string(Port));
	}
	Serving = std::thread([this]() { Server.listen_after_bind(); });
	return Bound;
}

void FPreviewServer::Stop()
{
	std::map<uint64, FReply> Unanswered;
	{
		std::lock_guard Lock(Mutex);
		if (bClosing)
		{
			return;
		}
		bClosing = true;
		Unanswered.swap(Waiting);
	}
	for (auto& [Id, Reply] : Unanswered)
	{
		Reply(FPreviewJson{ { "error", "the preview is closing" } });
	}
	if (Serving.joinable())
	{
		// stop() only reaches an accept loop that has begun; wait for it rather than miss it.
		while (!Server.is_running())
		{
			std::this_thread::yield();
		}
		Server.stop();
		Serving.join();
	}
}

std::optional<FPreviewJson> FPreviewServer::OnGameThread(std::function<void(FReply)> Work, std::chrono::seconds Timeout)
{
	const std::shared_ptr<std::promise<FPreviewJson>> Promise = std::make_shared<std::promise<FPreviewJson>>();
	std::future<FPreviewJson> Future = Promise->get_future();
	uint64 Id = 0;
	{
		std::lock_guard Lock(Mutex);
		if (bClosing)
		{
			return std::nullopt;
		}
		Id = ++LastCallId;
		// Whoever answers first (the game thread, or Stop) answers; later answers are dropped.
		Waiting.emplace(Id, [Promise](FPreviewJson Value) { Promise->set_value(std::move(Value)); });
	}
	const FReply Reply = [this, Id](FPreviewJson Value)
	{
		FReply Waiter;
		{
			std::lock_guard Lock(Mutex);
			const auto It = Waiting.find(Id);
			if (It == Waiting.end())
			{
				return;
			}
			Waiter = std::move(It->second);
			Waiting.erase(It);
		}
		Waiter(std::move(Value));
	};
	GameThreadTasks.AddGameThreadTask([Work = std::move(Work), Reply]() { Work(Reply); });
	if (Future.wait_for(Timeout) != std::future_status::ready)
	{
		std::lock_guard Lock(Mutex);
		Waiting.erase(Id);
		return std::nullopt;
	}
	return Future.get();
}

void FPreviewServer::Answer(httplib::Response& Response, const std::optional<FPreviewJson>& Reply)
{
	if (!Reply)
	{
		Response.status = 503;
		Response.set_content(FPreviewJson{ { "error", "the game did not answer in time" } }.dump(), JsonType);
		return;
	}
	Response.set_content(Reply->dump(), JsonType);
}
