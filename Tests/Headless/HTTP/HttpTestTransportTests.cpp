// The headless test transport: requests recorded instead of sent, answered when the test says.
#include "Headless/HttpTestTransport.h"
#include "HttpTestSupport.h"
#include "LoopbackHttpServer.h"

#include <gtest/gtest.h>

#include <optional>

namespace
{
	class FHttpTestTransportTest : public ::testing::Test
	{
	protected:
		virtual void TearDown() override
		{
			Transport.reset();
			UnloadHttpModule();
		}

		// Nothing listens there: a request that reached the network would fail, not wait.
		const std::string UnreachableUrl = "http://127.0.0.1:" + std::to_string(FindClosedLoopbackPort());
		std::optional<FHttpTestTransport> Transport{std::in_place};

		FHttpRequestRef Process(const FString& Verb, const std::string& Path, const FString& Body = FString())
		{
			FHttpRequestRef Request = MakeRequest(Verb, UnreachableUrl + Path);
			if (!Body.IsEmpty())
			{
				Request->SetContentAsString(Body);
			}
			EXPECT_TRUE(Request->ProcessRequest());
			return Request;
		}
	};

	TEST_F(FHttpTestTransportTest, RecordsEachProcessedRequestInOrderAndLeavesItWaiting)
	{
		FHttpRequestRef SignIn = MakeRequest(TEXT("POST"), UnreachableUrl + "/auth");
		SignIn->SetHeader(TEXT("Authorization"), TEXT("Bearer token"));
		SignIn->SetHeader(TEXT("Content-Type"), TEXT("application/json"));
		SignIn->SetContentAsString(TEXT("{\"user\":\"Zoë\"}"));
		const TSharedRef<FCompletionRecord> SignInCompletion = RecordCompletion(SignIn);
		ASSERT_TRUE(SignIn->ProcessRequest());
		FHttpRequestRef Stash = Process(TEXT("GET"), "/stash");

		ASSERT_EQ(Transport->Num(), 2);
		const FHttpTestTransport::FRecordedRequest& First = Transport->GetRequest(0);
		EXPECT_EQ(First.Verb, FString(TEXT("POST")));
		EXPECT_EQ(First.URL, FString((UnreachableUrl + "/auth").c_str()));
		EXPECT_EQ(First.GetHeader(TEXT("authorization")), FString(TEXT("Bearer token")));
		EXPECT_EQ(First.Headers.Num(), 2);
		EXPECT_EQ(First.Body, FString(TEXT("{\"user\":\"Zoë\"}")));
		EXPECT_EQ(Transport->GetRequest(1).Verb, FString(TEXT("GET")));

		for (int32 Tick = 0; Tick < 5; ++Tick)
		{
			TickHttp();
		}
		EXPECT_EQ(SignInCompletion->Count, 0);
		EXPECT_TRUE(Transport->IsPending(0));
		EXPECT_EQ(SignIn->GetStatus(), EHttpRequestStatus::Processing);
	}

	TEST_F(FHttpTestTransportTest, TheRequestAddedDelegateHearsEachStartedRequestInsideProcessRequest)
	{
		TArray<FHttpRequestPtr> Added;
		FHttpManager& Manager = FHttpModule::Get().GetHttpManager();
		Manager.SetRequestAddedDelegate(FHttpManagerRequestAddedDelegate::CreateLambda([&Added](const FHttpRequestRef& Request)
		{
			Added.Add(Request);
		}));

		FHttpRequestRef First = Process(TEXT("GET"), "/first");
		ASSERT_EQ(Added.Num(), 1);
		EXPECT_EQ(Added[0], FHttpRequestPtr(First));
		FHttpRequestRef Second = Process(TEXT("POST"), "/second");
		ASSERT_EQ(Added.Num(), 2);
		EXPECT_EQ(Added[1], FHttpRequestPtr(Second));

		// A request that cannot start never reaches the manager.
		FHttpRequestRef Unusable = MakeRequest(TEXT("GET"), "ftp://127.0.0.1/stash");
		EXPECT_FALSE(Unusable->ProcessRequest());
		EXPECT_EQ(Added.Num(), 2);

		// Setting an unbound delegate stops it; answering and completing adds nothing.
		Manager.SetRequestAddedDelegate(FHttpManagerRequestAddedDelegate());
		Process(TEXT("GET"), "/third");
		ASSERT_TRUE(Transport->Respond(0, 200, TEXT("{}")));
		TickHttp();
		EXPECT_EQ(Added.Num(), 2);
	}

	TEST_F(FHttpTestTransportTest, AnsweredRequestCompletesAtTheNextTickWithTheGivenReply)
	{
		FHttpRequestRef First = Process(TEXT("GET"), "/first");
		FHttpRequestRef Second = Process(TEXT("GET"), "/second");
		const TSharedRef<FCompletionRecord> FirstCompletion = RecordCompletion(First);
		const TSharedRef<FCompletionRecord> SecondCompletion = RecordCompletion(Second);

		ASSERT_TRUE(Transport->Respond(1, 409, TEXT("{\"error\":\"Stapel voll\"}"), {TEXT("Content-Type: application/json"), TEXT("Retry-After: 3")}));
		EXPECT_FALSE(Transport->Respond(1, 200, TEXT("twice")));
		EXPECT_EQ(SecondCompletion->Count, 0);

		TickHttp();
		EXPECT_EQ(FirstCompletion->Count, 0);
		ASSERT_EQ(SecondCompletion->Count, 1);
		EXPECT_TRUE(SecondCompletion->bConnectedSuccessfully);
		ASSERT_TRUE(SecondCompletion->Response.IsValid());
		EXPECT_EQ(SecondCompletion->Response->GetResponseCode(), 409);
		EXPECT_EQ(SecondCompletion->Response->GetContentAsString(), FString(TEXT("{\"error\":\"Stapel voll\"}")));
		EXPECT_EQ(SecondCompletion->Response->GetHeader(TEXT("retry-after")), FString(TEXT("3")));
		EXPECT_EQ(SecondCompletion->Response->GetContentType(), FString(TEXT("application/json")));
		EXPECT_FALSE(Transport->IsPending(1));
		EXPECT_TRUE(Transport->IsPending(0));
	}

	TEST_F(FHttpTestTransportTest, FailedRequestCompletesUnconnectedAsConnectionError)
	{
		FHttpRequestRef Request = Process(TEXT("GET"), "/stash");
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Transport->FailWithConnectionError(0));

		TickHttp();
		ASSERT_EQ(Completion->Count, 1);
		EXPECT_FALSE(Completion->bConnectedSuccessfully);
		EXPECT_FALSE(Completion->Response.IsValid());
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::ConnectionError);
	}

	TEST_F(FHttpTestTransportTest, UnansweredRequestWaitsUntilItsOwnTimeout)
	{
		FHttpRequestRef Request = MakeRequest(TEXT("GET"), UnreachableUrl + "/stash");
		Request->SetTimeout(0.05f);
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		ASSERT_TRUE(Request->ProcessRequest());

		ASSERT_TRUE(TickUntil([&]() { return Completion->Count > 0; }));
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::TimedOut);
		EXPECT_FALSE(Transport->IsPending(0));
		EXPECT_FALSE(Transport->Respond(0, 200, TEXT("too late")));
		TickHttp();
		EXPECT_EQ(Completion->Count, 1);
	}

	TEST_F(FHttpTestTransportTest, CancelledRequestStopsWaitingAndIgnoresALateAnswer)
	{
		FHttpRequestRef Request = Process(TEXT("DELETE"), "/stash/7");
		const TSharedRef<FCompletionRecord> Completion = RecordCompletion(Request);
		Request->CancelRequest();
		EXPECT_FALSE(Transport->IsPending(0));
		EXPECT_FALSE(Transport->Respond(0, 200, TEXT("{}")));

		TickHttp();
		EXPECT_EQ(Completion->Count, 1);
		EXPECT_EQ(Request->GetFailureReason(), EHttpFailureReason::Cancelled);
	}

	TEST_F(FHttpTestTransportTest, RemovingTheTransportCancelsWhatItNeverAnsweredAndRestoresTheNetwork)
	{
		FHttpRequestRef Unanswered = Process(TEXT("GET"), "/stash");
		const TSharedRef<FCompletionRecord> UnansweredCompletion = RecordCompletion(Unanswered);
		Transport.reset();
		TickHttp();
		EXPECT_EQ(UnansweredCompletion->Count, 1);
		EXPECT_EQ(Unanswered->GetFailureReason(), EHttpFailureReason::Cancelled);

		FLoopbackHttpServer Server;
		Server.Routes().Get("/stash", [](const httplib::Request&, httplib::Response& Response)
		{
			Response.set_content("[]", "application/json");
		});
		Server.Start();
		FHttpRequestRef Real = MakeRequest(TEXT("GET"), Server.Url("/stash"));
		const TSharedRef<FCompletionRecord> RealCompletion = RecordCompletion(Real);
		ASSERT_TRUE(Real->ProcessRequest());
		ASSERT_TRUE(TickUntil([&]() { return RealCompletion->Count > 0; }));
		ASSERT_TRUE(RealCompletion->Response.IsValid());
		EXPECT_EQ(RealCompletion->Response->GetContentAsString(), FString(TEXT("[]")));
		EXPECT_EQ(Server.NumConnections(), 1u);
		UnloadHttpModule();
	}
}
