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

	const char* const NonAsciiBody = "{\r\n\t\"ticket\": \"Grüße ✓\"\r\n}";
	const TCHAR* const NonAsciiBodyText = TEXT("{\r\n\t\"ticket\": \"Grüße ✓\"\r\n}");

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
		std::string Method;
		std::string Path;
		std::string Body;
		std::string ContentType;
		std::string Authorization;
		std::string IdempotencyKey;
		bool bHasAuthorization = false;
		bool bHasIdempotencyKey = false;
		FClock::time_point At;
	};

	using FResponder = std::function<void(size_t Attempt, httplib::Response&)>;

	std::string Utf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	void ReplyJson(httplib::Response& Response, int Status, const std::string& Body)
	{
		Response.status = Status;
		Response.set_content(Body, "application/json");
	}

	/** One engine frame: the core ticker, then the HTTP manager, with the real time since the last frame. */
	void TickEngine(FClock::time_point& LastTick)
	{
		const FClock::time_point Now = FClock::now();
		const float DeltaSeconds = std::chrono::duration<float>(Now - LastTick).count();
		LastTick = Now;
		bInsideEngineTick = true;
		FTSTicker::GetCoreTicker().Tick(DeltaSeconds);
		FHttpModule::Get().GetHttpManager().Tick(DeltaSeconds);
		bInsideEngineTick = false;
	}

	/** Ticks until Condition holds or Seconds pass; sleeps only while no completion is due. */
	bool TickUntil(const std::function<bool()>& Condition, double Seconds = 10.0)
	{
		const FClock::time_point Deadline = FClock::now() + std::chrono::duration_cast<FClock::duration>(std::chrono::duration<double>(Seconds));
		FClock::time_point LastTick = FClock::now();
		for (int32 Iteration = 0; Iteration < 100000 && FClock::now() < Deadline; ++Iteration)
		{
			TickEngine(LastTick);
			if (Condition())
			{
				return true;
			}
			FHeadlessHttp::WaitForGameThreadWork(0.005f);
		}
		return Condition();
	}

	class FCaptureDevice : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type, const FName& Category) override
		{
			if (Category == LogQuorvel.GetCategoryName())
			{
				Lines.Add(V);
			}
		}

		TArray<FString> Lines;
	};

	class FQuorvelClientTest : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			UQuorvelSettings* Settings = GetMutableDefault<UQuorvelSettings>();
			SavedSettings = { Settings->BaseUrl, Settings->RequestTimeoutSeconds, Settings->MaxRetries, Settings->RetryBaseDelaySeconds, Settings->RetryMaxDelaySeconds };
			Settings->BaseUrl = FString(Server.Url("").c_str());
			Settings->RequestTimeoutSeconds = 5.0f;
			Settings->MaxRetries = 2;
			Settings->RetryBaseDelaySeconds = 0.01f;
			Settings->RetryMaxDelaySeconds = 0.05f;
		}

		virtual void TearDown() override
		{
			Server.Release();
			UQuorvelSettings* Settings = GetMutableDefault<UQuorvelSettings>();
			Settings->BaseUrl = SavedSettings.BaseUrl;
			Settings->RequestTimeoutSeconds = SavedSettings.Timeout;
			Settings->MaxRetries = SavedSettings.MaxRetries;
			Settings->RetryBaseDelaySeconds = SavedSettings.BaseDelay;
			Settings->RetryMaxDelaySeconds = SavedSettings.MaxDelay;
			FTSTicker::GetCoreTicker().Reset();
			FModuleManager::Get().UnloadModule(TEXT("HTTP"));
		}

		UQuorvelSettings& Settings()
		{
			return *GetMutableDefault<UQuorvelSettings>();
		}

		/** Answers POST Path with Respond(attempt number), recording every request that arrives. */
		void Serve(const std::string& Path, FResponder Respond)
		{
			Server.Routes().Post(Path, [this, Path, Respond](const httplib::Request& Request, httplib::Response& Response)
			{
				size_t Attempt = 0;
				{
					std::lock_guard<std::mutex> Lock(Mutex);
					FReceivedRequest& Received = Requests[Path].emplace_back();
					Received.Method = Request.method;
					Received.Path = Request.path;
					Received.Body = Request.body;
					Received.ContentType = Request.get_header_value("Content-Type");
					Received.Authorization = Request.get_header_value("Authorization");
					Received.IdempotencyKey = Request.get_header_value("Idempotency-Key");
					Received.bHasAuthorization = Request.has_header("Authorization");
					Received.bHasIdempotencyKey = Request.has_header("Idempotency-Key");
					Received.At = FClock::now();
					Attempt = Requests[Path].size() - 1;
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
			return bCompleted;
		}

		FLoopbackHttpServer Server;

	private:
		struct FSavedSettings
		{
			FString BaseUrl;
			float Timeout;
			int32 MaxRetries;
			float BaseDelay;
			float MaxDelay;
		} SavedSettings;

		std::mutex Mutex;
		std::map<std::string, std::vector<FReceivedRequest>> Requests;
	};
}

TEST_F(FQuorvelClientTest, SendsTheBodyAsUtf8JsonWithTokenAndKeyAndCompletesOnceDuringATickWithTheReplyObject)
{
	Serve("/v1/game/sessions", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 201, "{\"player_id\": \"p-1\", \"stacks\": 3}");
	});
	Server.Start();

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/sessions"), NonAsciiBodyText, TEXT("tok-123"), TEXT("key-1"));
	EXPECT_EQ(Record->Count, 0);
	ASSERT_TRUE(Complete(Record));

	EXPECT_EQ(Record->Count, 1);
	EXPECT_FALSE(Record->bOutsideTick);
	EXPECT_EQ(Record->ThreadId, std::this_thread::get_id());
	ASSERT_TRUE(Record->bSuccess);
	ASSERT_TRUE(Record->Reply.IsValid());
	EXPECT_EQ(Record->Reply->GetStringField(TEXT("player_id")), FString(TEXT("p-1")));
	EXPECT_TRUE(Record->Error.Code.IsEmpty());

	const std::vector<FReceivedRequest> Requests = Received("/v1/game/sessions");
	ASSERT_EQ(Requests.size(), 1u);
	EXPECT_EQ(Requests[0].Method, "POST");
	EXPECT_EQ(Requests[0].Body, NonAsciiBody);
	EXPECT_EQ(Requests[0].ContentType, "application/json");
	EXPECT_EQ(Requests[0].Authorization, "Bearer tok-123");
	EXPECT_EQ(Requests[0].IdempotencyKey, "key-1");
}

TEST_F(FQuorvelClientTest, AnEmptyTokenAndKeySendNeitherHeader)
{
	Serve("/v1/game/sessions", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 200, "{}");
	});
	Server.Start();

	ASSERT_TRUE(Complete(Send(TEXT("/v1/game/sessions"))));
	const std::vector<FReceivedRequest> Requests = Received("/v1/game/sessions");
	ASSERT_EQ(Requests.size(), 1u);
	EXPECT_FALSE(Requests[0].bHasAuthorization);
	EXPECT_FALSE(Requests[0].bHasIdempotencyKey);
}

TEST_F(FQuorvelClientTest, AClientErrorIsMappedFromThePlatformsErrorBodyAndNeverRetried)
{
	Serve("/v1/game/inventory/grant", [](size_t, httplib::Response& Response)
	{
		Response.set_header("X-Request-Id", "req-7");
		ReplyJson(Response, 400, "{\"error\": {\"code\": \"invalid_quantity\", \"message\": \"Quantity must be positive.\"}}");
	});
	Server.Start();

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/inventory/grant"), TEXT("{}"), TEXT("tok"), TEXT("key"));
	ASSERT_TRUE(Complete(Record));

	EXPECT_EQ(Record->Count, 1);
	EXPECT_FALSE(Record->bSuccess);
	EXPECT_FALSE(Record->Reply.IsValid());
	EXPECT_EQ(Record->Error.HttpStatus, 400);
	EXPECT_EQ(Record->Error.Code, FString(TEXT("invalid_quantity")));
	EXPECT_EQ(Record->Error.Message, FString(TEXT("Quantity must be positive.")));
	EXPECT_EQ(Record->Error.RequestId, FString(TEXT("req-7")));
	EXPECT_FALSE(Record->Error.bRetryable);
	EXPECT_EQ(Received("/v1/game/inventory/grant").size(), 1u);
}

TEST_F(FQuorvelClientTest, RepliesWithoutAJsonObjectFailWithTheClientsOwnCode)
{
	Serve("/text", [](size_t, httplib::Response& Response)
	{
		Response.set_content("ok", "text/plain");
	});
	Serve("/array", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 200, "[1, 2]");
	});
	Serve("/crash", [](size_t, httplib::Response& Response)
	{
		Response.status = 500;
		Response.set_content("<html>Internal Server Error</html>", "text/html");
	});
	Server.Start();

	const TSharedRef<FSendRecord> Text = Send(TEXT("/text"));
	const TSharedRef<FSendRecord> Array = Send(TEXT("/array"));
	const TSharedRef<FSendRecord> Crash = Send(TEXT("/crash"));
	ASSERT_TRUE(Complete(Text) && Complete(Array) && Complete(Crash));

	for (const TSharedRef<FSendRecord>& Record : { Text, Array })
	{
		EXPECT_EQ(Record->Count, 1);
		EXPECT_FALSE(Record->bSuccess);
		EXPECT_EQ(Record->Error.HttpStatus, 200);
		EXPECT_EQ(Record->Error.Code, FString(TEXT("invalid_reply")));
		EXPECT_FALSE(Record->Error.Message.IsEmpty());
		EXPECT_FALSE(Record->Error.bRetryable);
	}
	EXPECT_EQ(Crash->Error.HttpStatus, 500);
	EXPECT_EQ(Crash->Error.Code, FString(TEXT("http_error")));
	EXPECT_FALSE(Crash->Error.bRetryable);
	EXPECT_EQ(Received("/crash").size(), 1u);
}

TEST_F(FQuorvelClientTest, RetriesAnUnavailablePlatformWithTheSameKeyAndNeverLogsTheToken)
{
	Serve("/v1/game/inventory/consume", [](size_t Attempt, httplib::Response& Response)
	{
		if (Attempt < 2)
		{
			ReplyJson(Response, 503, "{\"error\": {\"code\": \"maintenance\", \"message\": \"Back soon.\"}}");
			return;
		}
		ReplyJson(Response, 200, "{\"consumed\": 1}");
	});
	Server.Start();
	FCaptureDevice Capture;
	GLog->AddOutputDevice(&Capture);
	LogQuorvel.SetVerbosity(ELogVerbosity::VeryVerbose);

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/inventory/consume"), TEXT("{\"n\": 1}"), TEXT("secret-token"), TEXT("key-42"));
	const bool bCompleted = Complete(Record);
	GLog->RemoveOutputDevice(&Capture);
	LogQuorvel.ResetToDefault();
	ASSERT_TRUE(bCompleted);

	EXPECT_EQ(Record->Count, 1);
	EXPECT_TRUE(Record->bSuccess);
	const std::vector<FReceivedRequest> Requests = Received("/v1/game/inventory/consume");
	ASSERT_EQ(Requests.size(), 3u);
	for (const FReceivedRequest& Request : Requests)
	{
		EXPECT_EQ(Request.IdempotencyKey, "key-42");
		EXPECT_EQ(Request.Body, "{\"n\": 1}");
	}
	EXPECT_EQ(Capture.Lines.Num(), 2);
	for (const FString& Line : Capture.Lines)
	{
		EXPECT_FALSE(Line.Contains(TEXT("secret-token"))) << Utf8(Line);
	}
}

TEST_F(FQuorvelClientTest, GivesUpAfterTheLastRetryWithARetryableError)
{
	Serve("/busy", [](size_t, httplib::Response& Response)
	{
		ReplyJson(Response, 503, "{\"error\": {\"code\": \"maintenance\", \"message\": \"Back soon.\"}}");
	});
	Server.Start();
	Settings().MaxRetries = 1;

	const TSharedRef<FSendRecord> Record = Send(TEXT("/busy"));
	ASSERT_TRUE(Complete(Record));

	EXPECT_EQ(Record->Count, 1);
	EXPECT_EQ(Record->Error.HttpStatus, 503);
	EXPECT_EQ(Record->Error.Code, FString(TEXT("maintenance")));
	EXPECT_TRUE(Record->Error.bRetryable);
	EXPECT_EQ(Received("/busy").size(), 2u);
}

TEST_F(FQuorvelClientTest, RetryAfterSetsTheWaitAndALongerOneThanTheLongestDelayEndsTheRequest)
{
	Serve("/throttled", [](size_t Attempt, httplib::Response& Response)
	{
		if (Attempt == 0)
		{
			Response.set_header("Retry-After", "1");
			ReplyJson(Response, 429, "{}");
			return;
		}
		ReplyJson(Response, 200, "{}");
	});
	Serve("/closed-for-the-day", [](size_t, httplib::Response& Response)
	{
		Response.set_header("Retry-After", "3600");
		ReplyJson(Response, 429, "{}");
	});
	Server.Start();
	Settings().RetryMaxDelaySeconds = 2.0f;

	const TSharedRef<FSendRecord> Throttled = Send(TEXT("/throttled"));
	const TSharedRef<FSendRecord> Closed = Send(TEXT("/closed-for-the-day"));
	ASSERT_TRUE(Complete(Throttled) && Complete(Closed));

	EXPECT_TRUE(Throttled->bSuccess);
	const std::vector<FReceivedRequest> Requests = Received("/throttled");
	ASSERT_EQ(Requests.size(), 2u);
	EXPECT_GE(std::chrono::duration<double>(Requests[1].At - Requests[0].At).count(), 1.0);

	EXPECT_EQ(Closed->Count, 1);
	EXPECT_EQ(Closed->Error.HttpStatus, 429);
	EXPECT_TRUE(Closed->Error.bRetryable);
	EXPECT_EQ(Received("/closed-for-the-day").size(), 1u);
}

TEST_F(FQuorvelClientTest, NoConnectionAndTimeOutFailWithoutAStatusAsRetryable)
{
	Serve("/hang", [this](size_t, httplib::Response& Response)
	{
		Server.WaitUntilReleased();
		ReplyJson(Response, 200, "{}");
	});
	Server.Start();
	Settings().MaxRetries = 0;
	Settings().RequestTimeoutSeconds = 0.2f;

	const TSharedRef<FSendRecord> Hung = Send(TEXT("/hang"));
	Settings().BaseUrl = FString::Printf(TEXT("http://127.0.0.1:%d"), FindClosedLoopbackPort());
	const TSharedRef<FSendRecord> Refused = Send(TEXT("/v1/game/sessions"));
	ASSERT_TRUE(Complete(Hung) && Complete(Refused));

	EXPECT_EQ(Hung->Count, 1);
	EXPECT_EQ(Hung->Error.HttpStatus, 0);
	EXPECT_EQ(Hung->Error.Code, FString(TEXT("timeout")));
	EXPECT_TRUE(Hung->Error.bRetryable);
	EXPECT_EQ(Refused->Count, 1);
	EXPECT_EQ(Refused->Error.HttpStatus, 0);
	EXPECT_EQ(Refused->Error.Code, FString(TEXT("connection_failed")));
	EXPECT_TRUE(Refused->Error.bRetryable);
	EXPECT_FALSE(Refused->bOutsideTick);
}

TEST_F(FQuorvelClientTest, ALostConnectionAndATimedOutAttemptAreBothRetriedWithTheSameKey)
{
	FHttpTestTransport Transport;
	Settings().RequestTimeoutSeconds = 0.1f;

	const TSharedRef<FSendRecord> Record = Send(TEXT("/v1/game/inventory/move"), TEXT("{}"), TEXT("tok"), TEXT("key-9"));
	ASSERT_TRUE(TickUntil([&]() { return Transport.Num() == 1; }));
	Transport.FailWithConnectionError(0);
	// The second attempt is never answered, so it times out.
	ASSERT_TRUE(TickUntil([&]() { return Transport.Num() == 3; }));
	EXPECT_FALSE(Transport.IsPending(1));
	Transport.Respond(2, 200, TEXT("{\"moved\": true}"));
	ASSERT_TRUE(Complete(Record));

	EXPECT_EQ(Record->Count, 1);
	EXPECT_TRUE(Record->bSuccess);
	for (int32 Index = 0; Index < 3; ++Index)
	{
		EXPECT_EQ(Transport.GetRequest(Index).GetHeader(TEXT("Idempotency-Key")), FString(TEXT("key-9")));
		EXPECT_EQ(Transport.GetRequest(Index).URL, Settings().BaseUrl + TEXT("/v1/game/inventory/move"));
	}
}
