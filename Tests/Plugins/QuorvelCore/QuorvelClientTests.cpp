// The platform client over real sockets against a loopback server, ticked as the engine loop ticks it.
#include "Containers/StringConv.h"
#include "Containers/Ticker.h"
#include "Dom/JsonObject.h"
#include "Headless/HeadlessHttp.h"
#include "Headless/HttpTestTransport.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "LoopbackHttpServer.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"
#include "QuorvelClient.h"
#include "QuorvelLog.h"
#include "QuorvelSettings.h"
#include "UObject/Class.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace
{
	using FClock = std::chrono::steady_clock;

	bool bInsideEngineTick = false;

	struct FSendRecord
	{
		int32 Count = 0;
		bool bSuccess = false;
		TSharedPtr<FJsonObject> Reply;
		FQuorvelError Error;
		bool bOutsideTick = false;
		std::thread::id ThreadId;
	};

	struct FReceivedRequest
	{
		std::string Body;
		std::string ContentType;
		std::string Authorization;
		std::string IdempotencyKey;
		FClock::time_point At;
	};

	void ReplyJson(httplib::Response& Response, int Status, const std::string& Body)
	{
		Response.status = Status;
		Response.set_content(Body, "application/json");
	}

	/** Ticks as the engine loop does (core ticker, then HTTP manager, real frame time) until Condition holds. */
	bool TickUntil(const std::function<bool()>& Condition, double Seconds = 10.0)
	{
		const FClock::time_point Deadline = FClock::now() + std::chrono::duration_cast<FClock::duration>(std::chrono::duration<double>(Seconds));
		FClock::time_point LastTick = FClock::now();
		for (int32 Iteration = 0; Iteration < 100000 && FClock::now() < Deadline; ++Iteration)
		{
			const FClock::time_point Now = FClock::now();
			const float DeltaSeconds = std::chrono::duration<float>(Now - LastTick).count();
			LastTick = Now;
			bInsideEngineTick = true;
			FTSTicker::GetCoreTicker().Tick(DeltaSeconds);
			FHttpModule::Get().GetHttpManager().Tick(DeltaSeconds);
			bInsideEngineTick = false;
			if (Condition())
			{
				return true;
			}
			FHeadlessHttp::WaitForGameThreadWork(0.005f);
		}
		return Condition();
	}

	/** Every log line while it exists, the client's transport diagnostics included. */
	struct FLogLines : FOutputDevice
	{
		FLogLines()
		{
			GLog->AddOutputDevice(this);
			LogQuorvelClient.SetVerbosity(ELogVerbosity::VeryVerbose);
		}

		virtual ~FLogLines() override
		{
			GLog->RemoveOutputDevice(this);
			LogQuorvelClient.ResetToDefault();
		}

		virtual void Serialize(const TCHAR* Line, ELogVerbosity::Type, const FName& Category) override
		{
			Lines.Add(Category.ToString() + TEXT(": ") + Line);
		}

		TArray<FString> Lines;
	};

	class FQuorvelClientTest : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			Settings.BaseUrl = FString(Server.Url("").c_str());
			Settings.RequestTimeoutSeconds = 5.0f;
			Settings.MaxRetries = 2;
			Settings.RetryBaseDelaySeconds = 0.01f;
			Settings.RetryMaxDelaySeconds = 0.05f;
		}

		virtual void TearDown() override
		{
			Server.Release();
			FTSTicker::GetCoreTicker().Reset();
			FModuleManager::Get().UnloadModule(TEXT("HTTP"));
		}

		/** Answers POST Path with Respond(attempt number), recording every request that arrives. */
		void Serve(const std::string& Path, std::function<void(size_t, httplib::Response&)> Respond)
		{
			Server.Routes().Post(Path, [this, Path, Respond](const httplib::Request& Request, httplib::Response& Response)
			{
				size_t Attempt = 0;
				{
					std::lock_guard<std::mutex> Lock(Mutex);
					std::vector<FReceivedRequest>& Received = Requests[Path];
					Received.push_back({ Request.body, Request.get_header_value("Content-Type"), Request.get_header_value("Authorization"),
						Request.get_header_value("Idempotency-Key"), FClock::now() });
					Attempt = Received.size() - 1;
				}
				Respond(Attempt, Response);
			});
		}

		std::vector<FReceivedRequest> Received(const std::string& Path)
		{
			std::lock_guard<std::mutex> Lock(Mutex);
			return Requests[Path];
		}

		TSharedRef<FSendRecord> Send(const FString& Path, const FString& Body = TEXT("{}"), const FString& Token = FString(), const FString& Key = FString())
		{
			TSharedRef<FSendRecord> Record = MakeShared<FSendRecord>();
			FQuorvelClient::Send(TEXT("POST"), Path, Body, Token, Key, [Record](bool bSuccess, TSharedPtr<FJsonObject> Reply, FQuorvelError Error)
			{
				++Record->Count;
				Record->bSuccess = bSuccess;
				Record->Reply = Reply;
				Record->Error = Error;
				Record->bOutsideTick |= !bInsideEngineTick;
				Record->ThreadId = std::this_thread::get_id();
			});
			return Record;
		}

		/** Waits for the completion, then keeps ticking past every retry delay to catch a second one. */
		bool Complete(const TSharedRef<FSendRecord>& Record)
		{
			const bool bCompleted = TickUntil([&]() { return Record->Count > 0; });
			TickUntil([]() { return false; }, 0.15);
			return bCompleted && Record->Count == 1;
		}

		UQuorvelSettings& Settings = *GetMutableDefault<UQuorvelSettings>();
		FLoopbackHttpServer Server;

	private:
		std::mutex Mutex;
		std::map<std::string, std::vector<FReceivedRequest>> Requests;
	};
}

TEST_F(FQuorvelClientTest, SendsUtf8JsonWithTokenAndKeyOnlyWhenGivenAndCompletesOnceDuringATick)
{
	Serve("/v1/game/sessions", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 201, "{\"player_id\": \"p-1\"}");
	});
	Server.Start();

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/sessions"), TEXT("{\r\n\t\"ticket\": \"Grüße ✓\"\r\n}"), TEXT("tok-123"), TEXT("key-1"));
	EXPECT_EQ(Record->Count, 0);
	ASSERT_TRUE(Complete(Record));
	ASSERT_TRUE(Complete(Send(TEXT("/v1/game/sessions"))));

	EXPECT_FALSE(Record->bOutsideTick);
	EXPECT_EQ(Record->ThreadId, std::this_thread::get_id());
	ASSERT_TRUE(Record->bSuccess && Record->Reply.IsValid());
	EXPECT_EQ(Record->Reply->GetStringField(TEXT("player_id")), FString(TEXT("p-1")));
	const std::vector<FReceivedRequest> Requests = Received("/v1/game/sessions");
	ASSERT_EQ(Requests.size(), 2u);
	EXPECT_EQ(Requests[0].Body, "{\r\n\t\"ticket\": \"Grüße ✓\"\r\n}");
	EXPECT_EQ(Requests[0].ContentType, "application/json");
	EXPECT_EQ(Requests[0].Authorization, "Bearer tok-123");
	EXPECT_EQ(Requests[0].IdempotencyKey, "key-1");
	EXPECT_EQ(Requests[1].Authorization, "");
	EXPECT_EQ(Requests[1].IdempotencyKey, "");
}

TEST_F(FQuorvelClientTest, FailedRepliesAreMappedToTheErrorRecordAndOnlyUnavailabilityIsRetried)
{
	Serve("/bad", [](size_t, httplib::Response& Response)
	{
		Response.set_header("X-Request-Id", "req-7");
		ReplyJson(Response, 400, "{\"error\": {\"code\": \"invalid_quantity\", \"message\": \"Quantity must be positive.\"}}");
	});
	Serve("/text", [](size_t, httplib::Response& Response)
	{
		Response.set_content("ok", "text/plain");
	});
	Serve("/empty", [](size_t, httplib::Response& Response)
	{
		Response.status = 204;
	});
	Serve("/multi", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 207, "[1, 2]");
	});
	Serve("/busy", [](size_t, httplib::Response& Response)
	{
		Response.status = 502;
		Response.set_content("<html>Bad Gateway</html>", "text/html");
	});
	Server.Start();

	const TSharedRef<FSendRecord> Bad = Send(TEXT("/bad"));
	const TSharedRef<FSendRecord> Text = Send(TEXT("/text"));
	const TSharedRef<FSendRecord> Busy = Send(TEXT("/busy"));
	const TSharedRef<FSendRecord> Empty = Send(TEXT("/empty"));
	const TSharedRef<FSendRecord> Multi = Send(TEXT("/multi"));
	ASSERT_TRUE(Complete(Bad) && Complete(Text) && Complete(Busy) && Complete(Empty) && Complete(Multi));

	EXPECT_FALSE(Bad->bSuccess || Bad->Reply.IsValid());
	EXPECT_EQ(Bad->Error.HttpStatus, 400);
	EXPECT_EQ(Bad->Error.Code, FString(TEXT("invalid_quantity")));
	EXPECT_EQ(Bad->Error.Message, FString(TEXT("Quantity must be positive.")));
	EXPECT_EQ(Bad->Error.RequestId, FString(TEXT("req-7")));
	EXPECT_FALSE(Bad->Error.bRetryable);
	EXPECT_EQ(Received("/bad").size(), 1u);

	// Any 2xx is the platform having acted: accepted, with an empty object when the body holds none.
	for (const TSharedRef<FSendRecord>& Accepted : { Text, Empty, Multi })
	{
		EXPECT_TRUE(Accepted->bSuccess);
		ASSERT_TRUE(Accepted->Reply.IsValid());
		EXPECT_EQ(Accepted->Reply->Values.Num(), 0);
		EXPECT_EQ(Accepted->Error.HttpStatus, 0);
	}

	EXPECT_EQ(Busy->Error.HttpStatus, 502);
	EXPECT_EQ(Busy->Error.Code, FString(TEXT("http_error")));
	EXPECT_TRUE(Busy->Error.bRetryable);
	EXPECT_EQ(Received("/busy").size(), 3u);
}

TEST_F(FQuorvelClientTest, RetriesAnUnavailablePlatformWithTheSameKeyAndNeverLogsTheToken)
{
	Serve("/v1/game/inventory/consume", [](size_t Attempt, httplib::Response& Response)
	{
		ReplyJson(Response, Attempt < 2 ? 503 : 200, "{}");
	});
	Server.Start();
	FLogLines Capture;

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/inventory/consume"), TEXT("{}"), TEXT("secret-token"), TEXT("key-42"));
	const bool bCompleted = Complete(Record);

	ASSERT_TRUE(bCompleted);
	EXPECT_TRUE(Record->bSuccess);
	const std::vector<FReceivedRequest> Requests = Received("/v1/game/inventory/consume");
	ASSERT_EQ(Requests.size(), 3u);
	EXPECT_EQ(Requests[1].IdempotencyKey, "key-42");
	EXPECT_EQ(Requests[2].IdempotencyKey, "key-42");
	EXPECT_FALSE(Capture.Lines.IsEmpty());
	for (const FString& Line : Capture.Lines)
	{
		EXPECT_TRUE(Line.StartsWith(TEXT("LogQuorvelClient: "))) << TCHAR_TO_UTF8(*Line);
		EXPECT_FALSE(Line.Contains(TEXT("secret-token")));
	}
}

TEST_F(FQuorvelClientTest, RetryAfterSetsTheWaitAndALongerOneThanTheLongestDelayEndsTheRequest)
{
	Serve("/throttled", [](size_t Attempt, httplib::Response& Response)
	{
		Response.set_header("Retry-After", "1");
		ReplyJson(Response, Attempt == 0 ? 429 : 200, "{}");
	});
	Serve("/closed", [](size_t, httplib::Response& Response)
	{
		Response.set_header("Retry-After", "3600");
		ReplyJson(Response, 429, "{}");
	});
	Server.Start();
	Settings.RetryMaxDelaySeconds = 2.0f;

	const TSharedRef<FSendRecord> Throttled = Send(TEXT("/throttled"));
	const TSharedRef<FSendRecord> Closed = Send(TEXT("/closed"));
	ASSERT_TRUE(Complete(Throttled) && Complete(Closed));

	EXPECT_TRUE(Throttled->bSuccess);
	const std::vector<FReceivedRequest> Requests = Received("/throttled");
	ASSERT_EQ(Requests.size(), 2u);
	EXPECT_GE(std::chrono::duration<double>(Requests[1].At - Requests[0].At).count(), 1.0);
	EXPECT_EQ(Closed->Error.HttpStatus, 429);
	EXPECT_TRUE(Closed->Error.bRetryable);
	EXPECT_EQ(Received("/closed").size(), 1u);
}

TEST_F(FQuorvelClientTest, NoConnectionAndTimeOutFailWithoutAStatusAsRetryable)
{
	Serve("/hang", [this](size_t, httplib::Response& Response)
	{
		Server.WaitUntilReleased();
		ReplyJson(Response, 200, "{}");
	});
	Server.Start();
	Settings.MaxRetries = 0;
	Settings.RequestTimeoutSeconds = 0.2f;

	const TSharedRef<FSendRecord> Hung = Send(TEXT("/hang"));
	Settings.BaseUrl = FString::Printf(TEXT("http://127.0.0.1:%d"), FindClosedLoopbackPort());
	const TSharedRef<FSendRecord> Refused = Send(TEXT("/v1/game/sessions"));
	ASSERT_TRUE(Complete(Hung) && Complete(Refused));

	EXPECT_EQ(Hung->Error.HttpStatus, 0);
	EXPECT_EQ(Hung->Error.Code, FString(TEXT("timeout")));
	EXPECT_TRUE(Hung->Error.bRetryable);
	EXPECT_EQ(Refused->Error.HttpStatus, 0);
	EXPECT_EQ(Refused->Error.Code, FString(TEXT("connection_failed")));
	EXPECT_TRUE(Refused->Error.bRetryable);
	EXPECT_FALSE(Refused->bOutsideTick);
}

TEST_F(FQuorvelClientTest, ALostConnectionAndATimedOutAttemptAreBothRetriedWithTheSameKey)
{
	FHttpTestTransport Transport;
	Settings.RequestTimeoutSeconds = 0.1f;

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/inventory/move"), TEXT("{}"), TEXT("tok"), TEXT("key-9"));
	ASSERT_TRUE(TickUntil([&]() { return Transport.Num() == 1; }));
	Transport.FailWithConnectionError(0);
	// The second attempt is never answered, so it times out.
	ASSERT_TRUE(TickUntil([&]() { return Transport.Num() == 3; }));
	Transport.Respond(2, 200, TEXT("{}"));
	ASSERT_TRUE(Complete(Record));

	EXPECT_TRUE(Record->bSuccess);
	EXPECT_EQ(Transport.GetRequest(1).GetHeader(TEXT("Idempotency-Key")), FString(TEXT("key-9")));
	EXPECT_EQ(Transport.GetRequest(2).GetHeader(TEXT("Idempotency-Key")), FString(TEXT("key-9")));
}

TEST_F(FQuorvelClientTest, ARequestThatCannotStartCompletesOnceOnALaterFrameNeverInsideSend)
{
	Settings.BaseUrl = TEXT("not a url");

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/sessions"));
	EXPECT_EQ(Record->Count, 0);
	ASSERT_TRUE(Complete(Record));

	EXPECT_FALSE(Record->bOutsideTick);
	EXPECT_FALSE(Record->bSuccess);
	EXPECT_EQ(Record->Error.Code, FString(TEXT("request_failed")));
	EXPECT_FALSE(Record->Error.bRetryable);
}

TEST_F(FQuorvelClientTest, ShuttingTheModuleDownDropsWaitingRetriesUnsentAndUncompleted)
{
	Serve("/v1/game/inventory/grant", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 503, "{}");
	});
	Server.Start();
	FModuleManager::Get().LoadModule(TEXT("QuorvelCore"));
	Settings.RetryBaseDelaySeconds = 0.1f;
	Settings.RetryMaxDelaySeconds = 0.1f;

	FLogLines Capture;

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/inventory/grant"), TEXT("{}"), TEXT("tok"), TEXT("key-1"));
	// The first attempt has failed and its retry waits on the ticker once the client says so.
	ASSERT_TRUE(TickUntil([&]() { return Capture.Lines.Num() > 0; }));
	FModuleManager::Get().UnloadModule(TEXT("QuorvelCore"));
	TickUntil([]() { return false; }, 0.3);
	const TSharedRef<FSendRecord> AfterShutdown = Send(TEXT("/v1/game/inventory/grant"));
	TickUntil([]() { return false; }, 0.05);
	FModuleManager::Get().LoadModule(TEXT("QuorvelCore"));

	EXPECT_EQ(Received("/v1/game/inventory/grant").size(), 1u);
	EXPECT_EQ(Record->Count, 0);
	EXPECT_EQ(AfterShutdown->Count, 0);
}
