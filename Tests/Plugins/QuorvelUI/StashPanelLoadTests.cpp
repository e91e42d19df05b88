// The load sequence as the platform sees it: sign-in, container ensure, the reply read into records.
#include "StashPanelHarness.h"
#include "StashPanelListener.h"
#include "UObject/WeakObjectPtrTemplates.h"

using namespace StashPanelTest;

namespace
{
	const FLinearColor Normal(1.0f, 1.0f, 1.0f, 0.55f);
	const FLinearColor Error(0.94f, 0.42f, 0.35f, 1.0f);

	class FStashPanelLoad : public FStashPanelTest
	{
	};

	TEST_F(FStashPanelLoad, SignsInWithTheConfiguredIdentityThenEnsuresTheContainerWithTheToken)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		EXPECT_EQ(StatusTextOf(Panel), "Not loaded");

		Panel->LoadStash();
		ASSERT_EQ(Transport.Num(), 1);
		EXPECT_EQ(StatusTextOf(Panel), "Signing in\u2026");
		EXPECT_EQ(StatusColourOf(Panel), Normal);
		EXPECT_EQ(Utf8(Request(0).Verb), "POST");
		EXPECT_TRUE(Request(0).URL.EndsWith(SignInPath));
		EXPECT_EQ(Utf8(Request(0).Body), "{\r\n\t\"provider\": \"anonymous\",\r\n\t\"ticket\": \"demo_account\"\r\n}");
		EXPECT_EQ(Utf8(Request(0).GetHeader(TEXT("Content-Type"))), "application/json");
		EXPECT_TRUE(Request(0).GetHeader(TEXT("Authorization")).IsEmpty());
		EXPECT_TRUE(Request(0).GetHeader(TEXT("Idempotency-Key")).IsEmpty());

		Answer(0, 200, SignInReply(TEXT("tok-1"), TEXT("player-7")));
		ASSERT_EQ(Transport.Num(), 2);
		EXPECT_EQ(StatusTextOf(Panel), "Loading stash\u2026");
		EXPECT_TRUE(Request(1).URL.EndsWith(EnsurePath));
		EXPECT_EQ(Utf8(Request(1).GetHeader(TEXT("Authorization"))), "Bearer tok-1");
		EXPECT_TRUE(Request(1).GetHeader(TEXT("Idempotency-Key")).IsEmpty());
		EXPECT_EQ(Utf8(Request(1).Body), "{\r\n\t\"kind\": \"stash\",\r\n\t\"layout\": \"grid\",\r\n\t\"grid_width\": 10,\r\n\t\"grid_height\": 8\r\n}");
		EXPECT_FALSE(Panel->IsReady());

		FLogCapture Log(TEXT("LogQuorvel"));
		Answer(1, 200, TEXT("{\"id\":\"c-1\",\"kind\":\"stash\",\"layout\":\"grid\",\"items\":[]}"));
		EXPECT_TRUE(Panel->IsReady());
		EXPECT_EQ(StatusTextOf(Panel), "0 stack(s) \u00B7 10x8");
		ASSERT_EQ(Log.Lines.Num(), 1);
		EXPECT_EQ(Utf8(Log.Lines[0]), "Display: Stash panel loaded 0 stack(s) for player-7");
	}

	TEST_F(FStashPanelLoad, EscapesTheIdentityAndSendsUnclampedGridSizesAndAClampedSlotCount)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->Provider = TEXT("q\"b\\s\nx\x01y");
		Panel->Ticket = TEXT("Zo\u00EB/1");
		Panel->GridWidth = 0;
		Panel->GridHeight = -3;
		Panel->LoadStash();
		EXPECT_EQ(Utf8(Request(0).Body), "{\r\n\t\"provider\": \"q\\\"b\\\\s\\nx\\u0001y\",\r\n\t\"ticket\": \"Zo\u00EB/1\"\r\n}");
		Answer(0, 200, SignInReply());
		EXPECT_EQ(Utf8(Request(1).Body), "{\r\n\t\"kind\": \"stash\",\r\n\t\"layout\": \"grid\",\r\n\t\"grid_width\": 0,\r\n\t\"grid_height\": -3\r\n}");

		UQuorvelStashPanel* Slots = MakePanel();
		Slots->Layout = EQuorvelContainerLayout::Slots;
		Slots->SlotCount = 0;
		Slots->ContainerKind = TEXT("loadout");
		Slots->LoadStash();
		Answer(2, 200, SignInReply());
		EXPECT_EQ(Utf8(Request(3).Body), "{\r\n\t\"kind\": \"loadout\",\r\n\t\"layout\": \"slots\",\r\n\t\"slot_count\": 1\r\n}");
	}

	TEST_F(FStashPanelLoad, IgnoresASecondLoadWhileOneIsUnderWayButReloadStartsAFreshOne)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->LoadStash();
		Panel->LoadStash();
		EXPECT_EQ(Transport.Num(), 1);

		Answer(0, 200, SignInReply());
		Panel->LoadStash();
		EXPECT_EQ(Transport.Num(), 2);

		// Reload is private: a deposit's acceptance reaches it, which needs a ready panel.
		Answer(1, 200, TEXT("{\"id\":\"c-1\",\"layout\":\"grid\"}"));
		Panel->LoadStash();
		EXPECT_EQ(Transport.Num(), 3);
		Panel->DepositItem(FName(TEXT("Medkit")));
		ASSERT_EQ(Transport.Num(), 4);
		Answer(3, 200, TEXT("{}"));
		ASSERT_EQ(Transport.Num(), 5);
		EXPECT_TRUE(Request(4).URL.EndsWith(SignInPath));
	}

	TEST_F(FStashPanelLoad, AFailedSignInShowsTheMessageOrTheCodeAndKeepsAnEarlierLoad)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		UStashPanelListener* Listener = NewObject<UStashPanelListener>(GetTransientPackage());
		Panel->OnStashFailed.AddDynamic(Listener, &UStashPanelListener::HandleFailed);
		Load(Panel, TEXT("{\"id\":\"c-1\",\"layout\":\"grid\"}"));
		ASSERT_TRUE(Panel->IsReady());

		Panel->LoadStash();
		Answer(2, 403, TEXT("{\"error\":{\"code\":\"forbidden\",\"message\":\"Provider refused\"}}"));
		EXPECT_EQ(StatusTextOf(Panel), "Provider refused");
		EXPECT_EQ(StatusColourOf(Panel), Error);
		EXPECT_TRUE(Panel->IsReady());

		Panel->LoadStash();
		Answer(3, 409, TEXT("{\"error\":{\"code\":\"conflict\",\"message\":\"\"}}"));
		EXPECT_EQ(StatusTextOf(Panel), "conflict");

		ASSERT_EQ(Listener->Heard.Num(), 2);
		EXPECT_EQ(Utf8(Listener->Heard[0]), "failed 403 forbidden Provider refused ");

		// Not stuck: the failure ended the load.
		Panel->LoadStash();
		EXPECT_EQ(Transport.Num(), 5);
	}

	TEST_F(FStashPanelLoad, ASignInWithoutATokenEndsTheLoadSilentlyAndUnreadiesThePanel)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		UStashPanelListener* Listener = NewObject<UStashPanelListener>(GetTransientPackage());
		Panel->OnStashFailed.AddDynamic(Listener, &UStashPanelListener::HandleFailed);
		Load(Panel, TEXT("{\"id\":\"c-1\",\"layout\":\"grid\"}"));

		FLogCapture Log(TEXT("LogQuorvel"));
		Panel->LoadStash();
		Answer(2, 200, TEXT("{\"tokens\":{\"access_token\":\"\"}}"));
		EXPECT_EQ(Transport.Num(), 3);
		EXPECT_EQ(StatusTextOf(Panel), "Signed in but received no token");
		EXPECT_EQ(StatusColourOf(Panel), Error);
		EXPECT_FALSE(Panel->IsReady());
		EXPECT_EQ(Listener->Heard.Num(), 0);
		EXPECT_EQ(Log.Lines.Num(), 0);

		Panel->LoadStash();
		Answer(3, 200, TEXT("{\"tokens\":{\"access_token\":null}}"));
		EXPECT_EQ(StatusTextOf(Panel), "Signed in but received no token");
	}

	TEST_F(FStashPanelLoad, ASignInWithoutAPlayerKeepsThePreviousPlayerForTheLogLine)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		FLogCapture Log(TEXT("LogQuorvel"));
		Panel->LoadStash();
		Answer(0, 200, TEXT("{\"tokens\":{\"access_token\":\"t\"}}"));
		Answer(1, 200, TEXT("{\"id\":\"c\"}"));
		Panel->LoadStash();
		Answer(2, 200, SignInReply(TEXT("t"), TEXT("p-1")));
		Answer(3, 200, TEXT("{\"id\":\"c\"}"));
		Panel->LoadStash();
		Answer(4, 200, TEXT("{\"tokens\":{\"access_token\":\"t\"},\"player\":{}}"));
		Answer(5, 200, TEXT("{\"id\":\"c\"}"));

		ASSERT_EQ(Log.Lines.Num(), 3);
		EXPECT_EQ(Utf8(Log.Lines[0]), "Display: Stash panel loaded 0 stack(s) for ");
		EXPECT_EQ(Utf8(Log.Lines[1]), "Display: Stash panel loaded 0 stack(s) for p-1");
		EXPECT_EQ(Utf8(Log.Lines[2]), "Display: Stash panel loaded 0 stack(s) for p-1");
	}

	TEST_F(FStashPanelLoad, ReadsEveryStackKeyAndKeepsDefaultsForMissingOrMistypedOnes)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		FLogCapture Log(TEXT("LogQuorvel"));
		Load(Panel, TEXT("{\"id\":\"c-9\",\"kind\":\"stash\",\"layout\":\"grid\",\"items\":["
			"{\"item_id\":\"Rifle\",\"id\":\"i-1\",\"quantity\":3,\"x\":2,\"y\":1,\"slot_index\":5,\"slot_key\":\"k\",\"grid_w\":2,\"grid_h\":3,\"rotated\":true},"
			"7,"
			"{\"id\":\"i-2\",\"x\":\"four\",\"quantity\":null,\"rotated\":[true]}]}"));

		const TArray<FQuorvelItemInstance>& Contents = ValueOf<TArray<FQuorvelItemInstance>>(Panel, TEXT("Contents"));
		ASSERT_EQ(Contents.Num(), 2);
		const FQuorvelItemInstance& Rifle = Contents[0];
		EXPECT_EQ(Utf8(Rifle.ItemId.ToString()), "Rifle");
		EXPECT_EQ(Utf8(Rifle.InstanceId), "i-1");
		EXPECT_EQ(Rifle.Quantity, 3);
		EXPECT_EQ(Rifle.X, 2);
		EXPECT_EQ(Rifle.Y, 1);
		EXPECT_EQ(Rifle.SlotIndex, 5);
		EXPECT_EQ(Utf8(Rifle.SlotKey), "k");
		EXPECT_EQ(Rifle.GridW, 2);
		EXPECT_EQ(Rifle.GridH, 3);
		EXPECT_TRUE(Rifle.bRotated);

		const FQuorvelItemInstance& Bare = Contents[1];
		EXPECT_TRUE(Bare.ItemId.IsNone());
		EXPECT_EQ(Bare.X, -1);
		EXPECT_EQ(Bare.Quantity, 0);
		EXPECT_EQ(Bare.GridW, 1);
		EXPECT_FALSE(Bare.bRotated);
		ASSERT_EQ(Log.Lines.Num(), 1);
		EXPECT_EQ(Utf8(Log.Lines[0]), "Display: Stash panel loaded 2 stack(s) for player-7");
		// The stack without a position is kept but not drawn.
		EXPECT_EQ(StatusTextOf(Panel), "1 stack(s) \u00B7 10x8");
	}

	TEST_F(FStashPanelLoad, AReplyWithoutAnIdOrItemsShowsAnEmptyStashAndLeavesThePanelUnready)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		Load(Panel, TEXT("{\"items\":{\"not\":\"an array\"}}"));
		EXPECT_FALSE(Panel->IsReady());
		EXPECT_EQ(StatusTextOf(Panel), "0 stack(s) \u00B7 10x8");

		// A failed ensure after a good one keeps the container id.
		Load(Panel, TEXT("{\"id\":\"c-1\"}"));
		EXPECT_TRUE(Panel->IsReady());
		Panel->LoadStash();
		Answer(4, 200, SignInReply());
		Answer(5, 500, TEXT("{\"error\":{\"code\":\"unavailable\",\"message\":\"Down for maintenance\"}}"));
		EXPECT_TRUE(Panel->IsReady());
		EXPECT_EQ(StatusTextOf(Panel), "Down for maintenance");
		Panel->LoadStash();
		EXPECT_EQ(Transport.Num(), 7);
	}

	TEST_F(FStashPanelLoad, RepliesForADestroyedPanelChangeNothingAndEachPanelGetsOnlyItsOwn)
	{
		UQuorvelStashPanel* First = MakePanel();
		UQuorvelStashPanel* Second = MakePanel();
		UStashPanelListener* Listener = NewObject<UStashPanelListener>(GetTransientPackage());
		Listener->AddToRoot();
		First->OnStashFailed.AddDynamic(Listener, &UStashPanelListener::HandleFailed);
		First->OnStashLoaded.AddDynamic(Listener, &UStashPanelListener::HandleLoaded);
		First->LoadStash();
		Second->LoadStash();

		Answer(1, 200, SignInReply(TEXT("second")));
		EXPECT_EQ(StatusTextOf(First), "Signing in\u2026");
		EXPECT_EQ(StatusTextOf(Second), "Loading stash\u2026");

		TWeakObjectPtr<UQuorvelStashPanel> WeakFirst = First;
		First->RemoveFromRoot();
		Panels.Remove(First);
		CollectGarbage();
		ASSERT_FALSE(WeakFirst.IsValid());

		FLogCapture Log(TEXT("LogQuorvel"));
		Answer(0, 500, TEXT("{\"error\":{\"code\":\"boom\"}}"));
		Answer(2, 200, TEXT("{\"id\":\"c-2\"}"));
		EXPECT_EQ(Listener->Heard.Num(), 0);
		EXPECT_EQ(Transport.Num(), 3);
		ASSERT_EQ(Log.Lines.Num(), 1);
		EXPECT_TRUE(Second->IsReady());
		Listener->RemoveFromRoot();
	}

	TEST_F(FStashPanelLoad, StatusBeforeTheTreeExistsIsLostAndTheTreeStillSaysNotLoaded)
	{
		UQuorvelStashPanel* Panel = MakePanel(false);
		Panel->LoadStash();
		Answer(0, 200, SignInReply());
		Panel->TakeWidget();
		EXPECT_EQ(StatusTextOf(Panel), "Not loaded");
		EXPECT_EQ(StatusColourOf(Panel), Normal);
	}
}
