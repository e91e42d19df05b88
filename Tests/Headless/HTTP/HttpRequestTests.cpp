// The module over real sockets, against a loopback server.
#include "HttpTestSupport.h"
#include "LoopbackHttpServer.h"

#include <gtest/gtest.h>

namespace
{
	// UTF-8 in the source: the server compares the bytes it receives with these.
	const char* const NonAsciiJson = "{\"name\":\"Grüße ✓ 🎒\"}";
	const TCHAR* const NonAsciiJsonText = TEXT("{\"name\":\"Grüße ✓ 🎒\"}");

	class FHttpRequestTest : public ::testing::Test
	{
	protected:
		virtual void TearDown() override
		{
			Server.Release();
			UnloadHttpModule();
		}

		FLoopbackHttpServer Server;
	};

	TEST_F(FHttpRequestTest, PostDeliversItsBodyAsUtf8WithItsHeadersAndReturnsTheReply)
	{
		Server.Routes().Post("/echo", [](const httplib::Request& Request, httplib::Response& Response)
		{
			const bool bAsExpected = Request.body == NonAsciiJson
				&& Request.get_header_value("Content-Type") == "application/json"
				&& Request.get_header_value("X-Quorvel-Key") == "abc-123";
			Response.status = bAsExpected ? 200 : 400;
			Response.set_header("X-Echo", "yes");
			Response.set_content(bAsExpected ? Request.body : "unexpected request", "application/json; charset=utf-8");
		});
		Server.Start();

		FHttpRequestRef Request = MakeRequest(TEXT("post"), Server.Url("/echo?page=2&sort=name"));
		Request->SetHeader(TEXT("Content-Type"), TEXT("application/json"));
		Request->SetHeader(TEXT("X-Quorvel-Key"), TEXT("abc-123"));
		Request->SetContentAsString(NonAsciiJsonText);
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);

		ASSERT_TRUE(Request->ProcessRequest());
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Processing);
		ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));

		EXPECT_EQ(Request->GetVerb(), FString(TEXT("POST")));
		EXPECT_EQ(Request->GetURLParameter(TEXT("sort")), FString(TEXT("name")));
		EXPECT_TRUE(Completion->bConnectedSuccessfully);
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Succeeded);
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::None);
		ASSERT_TRUE(Completion->Response.IsValid());
		EXPECT_EQ(Completion->Response->GetResponseCode(), EHttpResponseCodes::Ok);
		EXPECT_EQ(Completion->Response->GetContentAsString(), FString(NonAsciiJsonText));
		EXPECT_EQ(Completion->Response->GetHeader(TEXT("x-echo")), FString(TEXT("yes")));
		EXPECT_EQ(Completion->Response->GetContentType(), FString(TEXT("application/json; charset=utf-8")));
		EXPECT_EQ(Completion->Response->GetContentLength(), uint64(strlen(NonAsciiJson)));
		EXPECT_TRUE(Completion->Response->GetAllHeaders().Contains(FString(TEXT("X-Echo: yes"))));
		EXPECT_EQ(Request->GetResponse(), Completion->Response);
		// Both sides answer the outcome through their shared base, as in the engine.
		const IHttpBase& ResponseBase = *Completion->Response;
		EXPECT_EQ(ResponseBase.GetStatus(), EHttpRequestStatus::Succeeded);
		EXPECT_EQ(ResponseBase.GetFailureReason(), EHttpFailureReason::None);
	}

	TEST_F(FHttpRequestTest, ClientErrorRepliesCompleteConnectedWithTheirCodeAndBody)
	{
		Server.Routes().Get("/missing", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.status = 404;
			Response.set_content("no such stash", "text/plain");
		});
		Server.Routes().Put("/conflict", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.status = 409;
			Response.set_content("{\"error\":\"version\"}", "application/json");
		});
		Server.Start();

		FHttpRequestRef Missing = MakeRequest(TEXT("GET"), Server.Url("/missing"));
		FHttpRequestRef Conflict = MakeRequest(TEXT("PUT"), Server.Url("/conflict"));
		Conflict->SetContentAsString(TEXT("{}"));
		const TSharedRef<FCompletionRecord> MissingCompletion = RecordCompletion(Missing);
		const TSharedRef<FCompletionRecord> ConflictCompletion = RecordCompletion(Conflict);
		ASSERT_TRUE(Missing->ProcessRequest());
		ASSERT_TRUE(Conflict->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return MissingCompletion->Count > 0 && ConflictCompletion->Count > 0; }));

		EXPECT_TRUE(MissingCompletion->bConnectedSuccessfully);
		EXPECT_EQ(Missing->GetStatus(), EHttpRequestStatus::Succeeded);
		ASSERT_TRUE(MissingCompletion->Response.IsValid());
		EXPECT_EQ(MissingCompletion->Response->GetResponseCode(), EHttpResponseCodes::NotFound);
		EXPECT_EQ(MissingCompletion->Response->GetContentAsString(), FString(TEXT("no such stash")));
		EXPECT_FALSE(EHttpResponseCodes::IsOk(MissingCompletion->Response->GetResponseCode()));

		EXPECT_TRUE(ConflictCompletion->bConnectedSuccessfully);
		ASSERT_TRUE(ConflictCompletion->Response.IsValid());
		EXPECT_EQ(ConflictCompletion->Response->GetResponseCode(), EHttpResponseCodes::Conflict);
		EXPECT_EQ(ConflictCompletion->Response->GetContentAsString(), FString(TEXT("{\"error\":\"version\"}")));
	}

	TEST_F(FHttpRequestTest, RefusedConnectionCompletesUnconnectedAsConnectionError)
	{
		FHttpRequestRef Request = MakeRequest(TEXT("GET"), "http://127.0.0.1:" + std::to_string(FindClosedLoopbackPort()) + "/");
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));

		EXPECT_FALSE(Completion->bConnectedSuccessfully);
		EXPECT_FALSE(Completion->Response.IsValid());
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Failed);
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::ConnectionError);
	}

	TEST_F(FHttpRequestTest, RequestPastItsTimeoutCompletesUnconnectedAsTimedOut)
	{
		Server.Routes().Get("/slow", [this](const httplib::Request&, httplib::Response& Response)
		{
			Server.WaitUntilReleased();
			Response.set_content("too late", "text/plain");
		});
		Server.Start();

		FHttpRequestRef Request = MakeRequest(TEXT("GET"), Server.Url("/slow"));
		Request->SetTimeout(0.2f);
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));

		EXPECT_FALSE(Completion->bConnectedSuccessfully);
		EXPECT_FALSE(Completion->Response.IsValid());
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Failed);
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::TimedOut);
		EXPECT_GE(Request->GetElapsedTime(), 0.2f);
	}

	TEST_F(FHttpRequestTest, CompletionRunsOnlyInsideTickOnTheTickingThread)
	{
		Server.Routes().Get("/item", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content("{}", "application/json");
		});
		Server.Start();

		FHttpRequestRef Request = MakeRequest(TEXT("GET"), Server.Url("/item"));
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());

		// The reply is in and waiting for the game thread, yet nothing runs until the tick.
		ASSERT_TRUE(FHeadlessHttp::WaitForGameThreadWork(10.0f));
		EXPECT_EQ(Completion->Count, 0);
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Processing);

		TickHttp();
		EXPECT_EQ(Completion->Count, 1);
		EXPECT_EQ(Completion->ThreadId, std::this_thread::get_id());
	}

	TEST_F(FHttpRequestTest, EveryProcessedRequestCompletesExactlyOnce)
	{
		Server.Routes().Get("/fast", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content("ok", "text/plain");
		});
		Server.Routes().Get("/slow", [this](const httplib::Request&, httplib::Response& Response)
		{
			Server.WaitUntilReleased();
			Response.set_content("late", "text/plain");
		});
		Server.Start();

		FHttpRequestRef Answered = MakeRequest(TEXT("GET"), Server.Url("/fast"));
		FHttpRequestRef Cancelled = MakeRequest(TEXT("GET"), Server.Url("/fast"));
		FHttpRequestRef TimedOut = MakeRequest(TEXT("GET"), Server.Url("/slow"));
		TimedOut->SetTimeout(0.1f);
		TArray<TSharedRef<FCompletionRecord>> Completions = {
			RecordCompletion(Answered), RecordCompletion(Cancelled), RecordCompletion(TimedOut)};
		ASSERT_TRUE(Answered->ProcessRequest());
		ASSERT_TRUE(Cancelled->ProcessRequest());
		ASSERT_TRUE(TimedOut->ProcessRequest());

		// Cancelling twice, and cancelling after the completion ran, change nothing.
		ASSERT_TRUE(FHeadlessHttp::WaitForGameThreadWork(10.0f));
		Cancelled->CancelRequest();
		Cancelled->CancelRequest();
		ASSERT_TRUE(TickUntil([&]() { return Completions[0]->Count > 0 && Completions[1]->Count > 0 && Completions[2]->Count > 0; }));
		Answered->CancelRequest();
		TimedOut->CancelRequest();

		// The blocked reply arrives after its request timed out, and must be ignored.
		Server.Release();
		for (int32 Tick = 0; Tick < 20; ++Tick)
		{
			TickHttp();
			FHeadlessHttp::WaitForGameThreadWork(0.01f);
		}
		for (const TSharedRef<FCompletionRecord>& Completion : Completions)
		{
			EXPECT_EQ(Completion->Count, 1);
		}
		EXPECT_EQ(Answered->GetStatus(), EHttpRequestStatus::Succeeded);
		EXPECT_EQ(Cancelled->GetFailureReason(), EHttpFailureReason::Cancelled);
		EXPECT_EQ(TimedOut->GetFailureReason(), EHttpFailureReason::TimedOut);
	}

	TEST_F(FHttpRequestTest, SequentialRequestsToOneHostShareOneConnection)
	{
		Server.Routes().Get("/item", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content("{}", "application/json");
		});
		Server.Start();

		for (int32 Index = 0; Index < 4; ++Index)
		{
			FHttpRequestRef Request = MakeRequest(TEXT("GET"), Server.Url("/item"));
			const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
			ASSERT_TRUE(Request->ProcessRequest());
			ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));
			ASSERT_TRUE(Completion->bConnectedSuccessfully);
		}
		EXPECT_EQ(Server.NumConnections(), 1u);
	}

	TEST_F(FHttpRequestTest, CancelledRequestCompletesOnceAsCancelledAtTheNextTick)
	{
		Server.Routes().Get("/slow", [this](const httplib::Request&, httplib::Response& Response)
		{
			Server.WaitUntilReleased();
			Response.set_content("late", "text/plain");
		});
		Server.Start();

		FHttpRequestRef Request = MakeRequest(TEXT("GET"), Server.Url("/slow"));
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());
		Request->CancelRequest();
		EXPECT_EQ(Completion->Count, 0);

		TickHttp();
		EXPECT_EQ(Completion->Count, 1);
		EXPECT_FALSE(Completion->bConnectedSuccessfully);
		EXPECT_FALSE(Completion->Response.IsValid());
		EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Failed);
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::Cancelled);
	}

	TEST_F(FHttpRequestTest, UnusableUrlsFailInsideProcessRequestWithoutReachingAServer)
	{
		const std::string Urls[] = {"", "ftp://127.0.0.1/stash", "http://", "/no-host", "http://bad host/"};
		for (const std::string& Url : Urls)
		{
			FHttpRequestRef Request = MakeRequest(TEXT("GET"), Url);
			const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
			EXPECT_FALSE(Request->ProcessRequest()) << Url;
			EXPECT_EQ(Completion->Count, 1) << Url;
			EXPECT_FALSE(Completion->bConnectedSuccessfully) << Url;
			EXPECT_EQ(Request->GetStatus(), EHttpRequestStatus::Failed) << Url;
			EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::Other) << Url;

			TickHttp();
			EXPECT_EQ(Completion->Count, 1) << Url;
		}
	}

	TEST_F(FHttpRequestTest, AUrlWithoutASchemeIsTakenForHttp)
	{
		Server.Routes().Get("/plain", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content("{}", "application/json");
		});
		Server.Start();

		const std::string Url = Server.Url("/plain");
		FHttpRequestRef Request = MakeRequest(TEXT("GET"), Url.substr(Url.find("://") + 3));
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));

		EXPECT_TRUE(Completion->bConnectedSuccessfully);
		ASSERT_TRUE(Completion->Response.IsValid());
		EXPECT_EQ(Completion->Response->GetResponseCode(), EHttpResponseCodes::Ok);
	}

	TEST(FHttpResponseCodesTest, OnlyOkToPartialContentCountAsOk)
	{
		EXPECT_FALSE(EHttpResponseCodes::IsOk(EHttpResponseCodes::SwitchProtocol));
		EXPECT_TRUE(EHttpResponseCodes::IsOk(EHttpResponseCodes::Ok));
		EXPECT_TRUE(EHttpResponseCodes::IsOk(EHttpResponseCodes::NoContent));
		EXPECT_TRUE(EHttpResponseCodes::IsOk(EHttpResponseCodes::PartialContent));
		EXPECT_FALSE(EHttpResponseCodes::IsOk(207));
		EXPECT_FALSE(EHttpResponseCodes::IsOk(226));
		EXPECT_FALSE(EHttpResponseCodes::IsOk(EHttpResponseCodes::Ambiguous));
	}

	TEST_F(FHttpRequestTest, MalformedUtf8InAReplyDecodesAsReplacementCharacters)
	{
		Server.Routes().Get("/binary", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content(std::string("A\xff\xfe" "B\xc3", 5), "text/plain");
		});
		Server.Start();

		FHttpRequestRef Request = MakeRequest(TEXT("GET"), Server.Url("/binary"));
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));

		ASSERT_TRUE(Completion->Response.IsValid());
		EXPECT_EQ(Completion->Response->GetContentLength(), 5u);
		const FString Text = Completion->Response->GetContentAsString();
		ASSERT_GE(Text.Len(), 3);
		EXPECT_EQ(Text[0], TEXT('A'));
		EXPECT_EQ(Text[1], TCHAR(0xFFFD));
		EXPECT_TRUE(Text.Contains(TEXT("B")));
		EXPECT_EQ(Text[Text.Len() - 1], TCHAR(0xFFFD));
	}

	TEST_F(FHttpRequestTest, RequestWhoseOwnerIsGoneStillCompletesAndFindsNothing)
	{
		Server.Routes().Get("/item", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content("{}", "application/json");
		});
		Server.Start();

		struct FOwner
		{
			int32 Replies = 0;
		};
		TSharedPtr<FOwner> Owner = MakeShared<FOwner>();
		bool bCompleted = false;
		bool bFoundOwner = true;
		{
			FHttpRequestRef Request = MakeRequest(TEXT("GET"), Server.Url("/item"));
			Request->OnProcessRequestComplete().BindLambda([WeakOwner = TWeakPtr<FOwner>(Owner), &bCompleted, &bFoundOwner](FHttpRequestPtr, FHttpResponsePtr, bool)
			{
				bCompleted = true;
				bFoundOwner = WeakOwner.IsValid();
			});
			ASSERT_TRUE(Request->ProcessRequest());
		}
		Owner.Reset();

		ASSERT_TRUE(TickUntil([&]() { return bCompleted; }));
		EXPECT_FALSE(bFoundOwner);
	}

	TEST_F(FHttpRequestTest, UnloadingTheModuleCancelsTheRequestsInFlight)
	{
		Server.Routes().Get("/slow", [this](const httplib::Request&, httplib::Response& Response)
		{
			Server.WaitUntilReleased();
			Response.set_content("late", "text/plain");
		});
		Server.Start();

		FHttpRequestRef First = MakeRequest(TEXT("GET"), Server.Url("/slow"));
		FHttpRequestRef Second = MakeRequest(TEXT("GET"), Server.Url("/slow"));
		const TSharedRef<FCompletionRecord> FirstCompletion = RecordCompletion(First);
		const TSharedRef<FCompletionRecord> SecondCompletion = RecordCompletion(Second);
		ASSERT_TRUE(First->ProcessRequest());
		ASSERT_TRUE(Second->ProcessRequest());

		ASSERT_TRUE(FModuleManager::Get().UnloadModule(TEXT("HTTP")));
		EXPECT_EQ(FirstCompletion->Count, 1);
		EXPECT_EQ(SecondCompletion->Count, 1);
		EXPECT_EQ(First->GetFailureReason(), EHttpFailureReason::Cancelled);
		EXPECT_EQ(Second->GetFailureReason(), EHttpFailureReason::Cancelled);

		// The module comes back on next use, with a transport of its own.
		Server.Release();
		FHttpRequestRef Again = MakeRequest(TEXT("GET"), Server.Url("/slow"));
		const TSharedRef<FCompletionRecord> AgainCompletion = RecordCompletion(Again);
		ASSERT_TRUE(Again->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return AgainCompletion->Count > 0; }));
		EXPECT_TRUE(AgainCompletion->bConnectedSuccessfully);
	}
}
