// The panel's costs on the paths a game hits: drawing a container, looking icons up, building
// request bodies, reading the ensure reply, and what a long session of reloads leaves behind.
#include "BenchmarkItemRow.h"
#include "Components/Widget.h"
#include "Dom/JsonObject.h"
#include "Headless/HeadlessViewport.h"
#include "Headless/HttpTestTransport.h"
#include "HttpManager.h"
#include "HttpModule.h"
#include "QuorvelStashPanel.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/UnrealType.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <optional>

namespace
{
	UQuorvelStashPanel* MakePanel()
	{
		UQuorvelStashPanel* Panel = CreateWidget<UQuorvelStashPanel>(GetTransientPackage());
		Panel->AddToRoot();
		Panel->bLoadOnConstruct = false;
		Panel->TakeWidget();
		return Panel;
	}

	void ReleasePanel(UQuorvelStashPanel* Panel)
	{
		Panel->RemoveFromRoot();
		CollectGarbage();
	}

	/** An item table of Count rows "Item<N>", each with a soft reference to a texture already in memory (rooted, as loaded assets stay in memory). */
	UDataTable* MakeItemTable(int32 Count)
	{
		UDataTable* Table = NewObject<UDataTable>(GetTransientPackage());
		Table->RowStruct = FBenchmarkItemRow::StaticStruct();
		for (int32 Index = 0; Index < Count; ++Index)
		{
			UTexture2D* Texture = NewObject<UTexture2D>(GetTransientPackage());
			Texture->AddToRoot();
			FBenchmarkItemRow Row;
			Row.ItemIcon_4_0123456789ABCDEF0123456789ABCDEF = TSoftObjectPtr<UTexture2D>(FSoftObjectPath(Texture));
			Table->AddRow(FName(*FString::Printf(TEXT("Item%d"), Index)), Row);
		}
		Table->AddToRoot();
		return Table;
	}

	void SetItemTable(UQuorvelStashPanel* Panel, UDataTable* Table)
	{
		FProperty* Property = Panel->GetClass()->FindPropertyByName(FName(TEXT("ItemTable")));
		*Property->ContainerPtrToValuePtr<TObjectPtr<UDataTable>>(Panel) = Table;
	}

	/** Stacks filling a Columns x Rows grid row by row, one per cell, item ids cycling through Kinds. */
	FQuorvelContainer MakeGrid(int32 Columns, int32 Rows, int32 Stacks, int32 Kinds)
	{
		FQuorvelContainer Container;
		Container.ContainerId = TEXT("c-bench");
		Container.Layout = TEXT("grid");
		for (int32 Index = 0; Index < Stacks; ++Index)
		{
			FQuorvelItemInstance Stack;
			Stack.InstanceId = FString::Printf(TEXT("i-%d"), Index);
			Stack.ItemId = FName(*FString::Printf(TEXT("Item%d"), Index % Kinds));
			Stack.Quantity = 1 + Index % 3;
			Stack.X = Index % Columns;
			Stack.Y = (Index / Columns) % Rows;
			Container.Items.Add(Stack);
		}
		return Container;
	}

	void ShowContainer(benchmark::State& State, int32 Columns, int32 Rows, int32 Stacks)
	{
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->GridWidth = Columns;
		Panel->GridHeight = Rows;
		SetItemTable(Panel, MakeItemTable(32));
		const FQuorvelContainer Container = MakeGrid(Columns, Rows, Stacks, 32);
		for (auto _ : State)
		{
			Panel->ShowContainer(Container);
			// The previous drawing is garbage now; a game collects it between frames, not inside one.
			State.PauseTiming();
			CollectGarbage();
			State.ResumeTiming();
		}
		State.counters["cells+stacks"] = double(Columns * Rows + Stacks);
		ReleasePanel(Panel);
	}

	void BM_ShowContainer_10x8_80Stacks(benchmark::State& State)
	{
		ShowContainer(State, 10, 8, 80);
	}
	BENCHMARK(BM_ShowContainer_10x8_80Stacks)->Unit(benchmark::kMicrosecond);

	void BM_ShowContainer_50x50_1250Stacks(benchmark::State& State)
	{
		ShowContainer(State, 50, 50, 1250);
	}
	BENCHMARK(BM_ShowContainer_50x50_1250Stacks)->Unit(benchmark::kMillisecond);

	void BM_ShowContainer_100x100_5000Stacks(benchmark::State& State)
	{
		ShowContainer(State, 100, 100, 5000);
	}
	BENCHMARK(BM_ShowContainer_100x100_5000Stacks)->Unit(benchmark::kMillisecond);

	// The icon lookup is private: its cost is the difference between drawing the same stacks with and
	// without a table (a label is built instead of an image then), per stack.
	void DrawStacks(benchmark::State& State, bool bWithTable)
	{
		constexpr int32 Stacks = 1000;
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->GridWidth = 1;
		Panel->GridHeight = 1;
		if (bWithTable)
		{
			SetItemTable(Panel, MakeItemTable(32));
		}
		const FQuorvelContainer Container = MakeGrid(1, 1, Stacks, 32);
		for (auto _ : State)
		{
			Panel->ShowContainer(Container);
			State.PauseTiming();
			CollectGarbage();
			State.ResumeTiming();
		}
		State.SetItemsProcessed(State.iterations() * Stacks);
		ReleasePanel(Panel);
	}

	void BM_DrawStack_WithIconLookup(benchmark::State& State)
	{
		DrawStacks(State, true);
	}
	BENCHMARK(BM_DrawStack_WithIconLookup)->Unit(benchmark::kMillisecond);

	void BM_DrawStack_WithoutTable(benchmark::State& State)
	{
		DrawStacks(State, false);
	}
	BENCHMARK(BM_DrawStack_WithoutTable)->Unit(benchmark::kMillisecond);

	// The panel's body printing: pretty, every line ended by CR LF.
	struct FBodyPrintPolicy : public TPrettyJsonPrintPolicy<TCHAR>
	{
		static inline void WriteLineTerminator(FArchive* Stream)
		{
			WriteChar(Stream, TEXT('\r'));
			WriteChar(Stream, TEXT('\n'));
		}
	};

	FString Serialise(const TSharedRef<FJsonObject>& Body)
	{
		FString Text;
		const TSharedRef<TJsonWriter<TCHAR, FBodyPrintPolicy>> Writer = TJsonWriterFactory<TCHAR, FBodyPrintPolicy>::Create(&Text);
		FJsonSerializer::Serialize(Body, Writer);
		return Text;
	}

	// The largest body the panel sends: a deposit with a placement, built and serialised as the panel does.
	void BM_DepositBody(benchmark::State& State)
	{
		const FString ContainerId = TEXT("8d6f0a52-3c1e-4f7b-9a0d-2b5c7e9f1a34");
		const FName ItemId(TEXT("Medkit"));
		for (auto _ : State)
		{
			const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
			Body->SetStringField(TEXT("container_id"), ContainerId);
			Body->SetStringField(TEXT("item_id"), ItemId.ToString());
			Body->SetNumberField(TEXT("quantity"), 3);
			const TSharedRef<FJsonObject> Placement = MakeShared<FJsonObject>();
			Placement->SetNumberField(TEXT("x"), 4);
			Placement->SetNumberField(TEXT("y"), 2);
			Body->SetObjectField(TEXT("to"), Placement);
			benchmark::DoNotOptimize(Serialise(Body));
		}
	}
	BENCHMARK(BM_DepositBody);

	void BM_SignInBody(benchmark::State& State)
	{
		const FString Provider = TEXT("anonymous");
		const FString Ticket = TEXT("demo_account");
		for (auto _ : State)
		{
			const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
			Body->SetStringField(TEXT("provider"), Provider);
			Body->SetStringField(TEXT("ticket"), Ticket);
			benchmark::DoNotOptimize(Serialise(Body));
		}
	}
	BENCHMARK(BM_SignInBody);

	/** Stacks fill a 100-wide grid row by row; unplaced ones carry -1 for both coordinates, which the drawing skips. */
	FString EnsureReply(int32 Stacks, bool bPlaced = true)
	{
		FString Reply = TEXT("{\"id\":\"c-bench\",\"kind\":\"stash\",\"layout\":\"grid\",\"items\":[");
		for (int32 Index = 0; Index < Stacks; ++Index)
		{
			Reply += FString::Printf(TEXT("%s{\"id\":\"i-%d\",\"item_id\":\"Item%d\",\"quantity\":%d,\"x\":%d,\"y\":%d,\"slot_index\":-1,\"slot_key\":\"\",\"grid_w\":1,\"grid_h\":1,\"rotated\":false}"),
				Index ? TEXT(",") : TEXT(""), Index, Index % 32, 1 + Index % 3, bPlaced ? Index % 100 : -1, bPlaced ? Index / 100 : -1);
		}
		return Reply + TEXT("]}");
	}

	// The client's share of the ensure completion: the reply text turned into the JSON object the panel reads.
	void BM_ParseEnsureReply_5000Stacks(benchmark::State& State)
	{
		const FString Reply = EnsureReply(5000);
		for (auto _ : State)
		{
			TSharedPtr<FJsonObject> Object;
			FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Reply), Object);
			benchmark::DoNotOptimize(Object);
		}
	}
	BENCHMARK(BM_ParseEnsureReply_5000Stacks)->Unit(benchmark::kMillisecond);

	// The whole ensure completion for 5,000 stacks: JSON parse, records, and the drawing it ends in.
	void EnsureCompletion(benchmark::State& State, int32 GridSize, bool bPlaced)
	{
		std::optional<FHttpTestTransport> Transport(std::in_place);
		UQuorvelStashPanel* Panel = MakePanel();
		Panel->GridWidth = GridSize;
		Panel->GridHeight = GridSize;
		SetItemTable(Panel, MakeItemTable(32));
		const FString Reply = EnsureReply(5000, bPlaced);
		for (auto _ : State)
		{
			State.PauseTiming();
			CollectGarbage();
			const int32 First = Transport->Num();
			Panel->LoadStash();
			Transport->Respond(First, 200, TEXT("{\"tokens\":{\"access_token\":\"t\"},\"player\":{\"id\":\"p\"}}"));
			FHttpModule::Get().GetHttpManager().Tick(0.0f);
			Transport->Respond(First + 1, 200, Reply);
			State.ResumeTiming();
			FHttpModule::Get().GetHttpManager().Tick(0.0f);
		}
		ReleasePanel(Panel);
		Transport.reset();
	}

	void BM_EnsureReply_5000Stacks(benchmark::State& State)
	{
		EnsureCompletion(State, 100, true);
	}
	BENCHMARK(BM_EnsureReply_5000Stacks)->Unit(benchmark::kMillisecond);

	// The same completion with nothing to draw (a one-cell grid, every stack unplaced): the reply
	// text parsed, read into records, kept in Contents and the parsed reply released.
	// Subtract BM_ParseEnsureReply_5000Stacks for the panel's reading alone.
	void BM_ReadEnsureReply_5000Stacks(benchmark::State& State)
	{
		EnsureCompletion(State, 1, false);
	}
	BENCHMARK(BM_ReadEnsureReply_5000Stacks)->Unit(benchmark::kMillisecond);

	int64 ResidentBytes()
	{
		std::ifstream Statm("/proc/self/statm");
		int64 Pages = 0;
		int64 Resident = 0;
		Statm >> Pages >> Resident;
		return Resident * 4096;
	}

	// A long session: 10,000 complete reloads of a small stash, collecting garbage as the engine would.
	void BM_TenThousandReloads(benchmark::State& State)
	{
		std::optional<FHttpTestTransport> Transport(std::in_place);
		UQuorvelStashPanel* Panel = MakePanel();
		const FString Reply = EnsureReply(12);
		for (auto _ : State)
		{
			double ObjectsAfterFirstThousand = 0.0;
			double BytesAfterFirstThousand = 0.0;
			for (int32 Reload = 0; Reload < 10000; ++Reload)
			{
				const int32 First = Transport->Num();
				Panel->LoadStash();
				Transport->Respond(First, 200, TEXT("{\"tokens\":{\"access_token\":\"t\"},\"player\":{\"id\":\"p\"}}"));
				FHttpModule::Get().GetHttpManager().Tick(0.0f);
				Transport->Respond(First + 1, 200, Reply);
				FHttpModule::Get().GetHttpManager().Tick(0.0f);
				if (Reload % 100 == 99)
				{
					CollectGarbage();
				}
				if (Reload == 999)
				{
					ObjectsAfterFirstThousand = GUObjectArray.GetObjectArrayNumMinusAvailable();
					BytesAfterFirstThousand = double(ResidentBytes());
				}
			}
			State.counters["objects@1k"] = ObjectsAfterFirstThousand;
			State.counters["objects@10k"] = GUObjectArray.GetObjectArrayNumMinusAvailable();
			State.counters["rssMB@1k"] = BytesAfterFirstThousand / (1024.0 * 1024.0);
			State.counters["rssMB@10k"] = double(ResidentBytes()) / (1024.0 * 1024.0);
		}
		ReleasePanel(Panel);
		Transport.reset();
	}
	BENCHMARK(BM_TenThousandReloads)->Iterations(1)->Unit(benchmark::kSecond);
}

namespace
{
	// Hit tests on a panel laid out in a viewport, as a drag would ask them on every pointer move.
	struct FOnScreenPanel
	{
		FOnScreenPanel(int32 Stacks)
			: Viewport(FVector2D(1600.0, 1200.0), FVector2D(100.0, 100.0))
		{
			Panel = MakePanel();
			Panel->GridWidth = 20;
			Panel->GridHeight = 50;
			Panel->CellSize = 16.0f;
			Panel->AddToViewport();
			Viewport.Tick(0.0f);
			Panel->ShowContainer(MakeGrid(20, 50, Stacks, 32));
			Viewport.Tick(0.0f);
			// The bottom-right cell holds the last stack of the reply, so the search walks the whole list.
			const FProperty* CanvasProperty = Panel->GetClass()->FindPropertyByName(FName(TEXT("GridCanvas")));
			const UWidget* Canvas = CanvasProperty->ContainerPtrToValuePtr<TObjectPtr<UWidget>>(Panel)->Get();
			Target = FVector2D(Canvas->GetCachedGeometry().LocalToAbsolute(FVector2D(19.5 * 16.0, 49.5 * 16.0)));
		}

		~FOnScreenPanel()
		{
			Panel->RemoveFromParent();
			ReleasePanel(Panel);
		}

		FHeadlessViewport Viewport;
		UQuorvelStashPanel* Panel = nullptr;
		FVector2D Target;
	};

	void BM_CellAtScreenPosition(benchmark::State& State)
	{
		FOnScreenPanel Screen(0);
		int32 X = 0;
		int32 Y = 0;
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(Screen.Panel->CellAtScreenPosition(Screen.Target, X, Y));
		}
	}
	BENCHMARK(BM_CellAtScreenPosition);

	void BM_InstanceAtScreenPosition_1000Stacks(benchmark::State& State)
	{
		FOnScreenPanel Screen(1000);
		FQuorvelItemInstance Found;
		bool bHit = false;
		for (auto _ : State)
		{
			bHit = Screen.Panel->InstanceAtScreenPosition(Screen.Target, Found);
			benchmark::DoNotOptimize(bHit);
		}
		if (!bHit)
		{
			State.SkipWithError("the point found no stack");
		}
	}
	BENCHMARK(BM_InstanceAtScreenPosition_1000Stacks);
}

BENCHMARK_MAIN();
