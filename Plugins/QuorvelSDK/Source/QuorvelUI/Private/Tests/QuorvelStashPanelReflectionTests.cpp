// The panel as the editor and scripts see it: its class, properties, delegates, functions and events,
// with their flags, categories, tooltips and metadata.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Blueprint/UserWidget.h"

namespace UE::Quorvel::Tests
{
	/** The names of a structure's own properties (a function's parameters), joined with ", ". */
	inline FString JoinedPropertyNames(const UStruct* Struct, bool bWithTypes = false)
	{
		TArray<FString> Names;
		for (TFieldIterator<FProperty> It(Struct, EFieldIteratorFlags::ExcludeSuper); It; ++It)
		{
			Names.Add(bWithTypes ? It->GetName() + TEXT(":") + It->GetCPPType() : It->GetName());
		}
		return FString::Join(Names, TEXT(", "));
	}
}

BEGIN_DEFINE_SPEC(FQuorvelStashPanelReflectionTests, "Quorvel.UI.Reflection", UE::Quorvel::Tests::TestFlags)
	const FProperty* PanelProperty(const TCHAR* Name)
	{
		const FProperty* Property = UQuorvelStashPanel::StaticClass()->FindPropertyByName(FName(Name));
		TestNotNull(*FString::Printf(TEXT("Property %s"), Name), Property);
		return Property;
	}

	UFunction* PanelFunction(const TCHAR* Name)
	{
		UFunction* Function = UQuorvelStashPanel::StaticClass()->FindFunctionByName(FName(Name));
		TestNotNull(*FString::Printf(TEXT("Function %s"), Name), Function);
		return Function;
	}

#if WITH_EDITORONLY_DATA
	/** A metadata value of a property, or "<none>" when it has none. */
	FString Meta(const TCHAR* Name, const TCHAR* Key)
	{
		const FProperty* Property = PanelProperty(Name);
		const FString* Value = Property ? Property->FindMetaData(Key) : nullptr;
		return Value ? *Value : FString(TEXT("<none>"));
	}
#endif

	const TArray<const TCHAR*> Delegates = { TEXT("OnStashLoaded"), TEXT("OnStashFailed"), TEXT("OnDepositAccepted"), TEXT("OnWithdrawAccepted"),
		TEXT("OnTransferAccepted") };
	const TArray<const TCHAR*> Configuration = { TEXT("bLoadOnConstruct"), TEXT("Provider"), TEXT("Ticket"), TEXT("ContainerKind"), TEXT("Layout"),
		TEXT("GridWidth"), TEXT("GridHeight"), TEXT("SlotCount"), TEXT("SlotColumns"), TEXT("CellSize"), TEXT("PanelColour"), TEXT("CellColour"),
		TEXT("AccentColour"), TEXT("Title") };
	const TArray<const TCHAR*> PrivateReferences = { TEXT("Root"), TEXT("GridSizer"), TEXT("GridCanvas"), TEXT("GridFrame"), TEXT("TitleText"),
		TEXT("StatusText"), TEXT("ItemWidgets"), TEXT("ItemTable"), TEXT("Contents") };
END_DEFINE_SPEC(FQuorvelStashPanelReflectionTests)

void FQuorvelStashPanelReflectionTests::Define()
{
	using namespace UE::Quorvel::Tests;

	It("is the Tollmere stash panel, a user widget of the QuorvelUI package", [this]
	{
		const UClass* Class = UQuorvelStashPanel::StaticClass();
		TestTrue(TEXT("Derives from UUserWidget"), Class->GetSuperClass() == UUserWidget::StaticClass());
		TestEqual(TEXT("Path"), Class->GetPathName(), TEXT("/Script/QuorvelUI.QuorvelStashPanel"));
		TestEqual(TEXT("Package"), FString(UQuorvelStashPanel::StaticPackage()), TEXT("/Script/QuorvelUI"));
#if WITH_EDITORONLY_DATA
		TestEqual(TEXT("Display name"), Class->GetMetaData(TEXT("DisplayName")), TEXT("Tollmere Stash Panel"));
		const FString& ToolTip = Class->GetMetaData(TEXT("ToolTip"));
		TestTrue(TEXT("Tooltip opens with the class comment"), ToolTip.StartsWith(TEXT("Shows a player's out-of-raid stash at the grid coordinates the platform stores."), ESearchCase::CaseSensitive));
		TestTrue(TEXT("Tooltip says where icons come from"), ToolTip.Contains(TEXT("never from the platform"), ESearchCase::CaseSensitive));
#endif
	});

	Describe("Properties", [this]
	{
		It("are the twenty-eight the panel declares, in declaration order", [this]
		{
			TestEqual(TEXT("Own properties"), JoinedPropertyNames(UQuorvelStashPanel::StaticClass()),
				TEXT("OnStashLoaded, OnStashFailed, OnDepositAccepted, OnWithdrawAccepted, OnTransferAccepted, bLoadOnConstruct, Provider, Ticket, ")
				TEXT("ContainerKind, Layout, GridWidth, GridHeight, SlotCount, SlotColumns, CellSize, PanelColour, CellColour, AccentColour, Title, ")
				TEXT("Root, GridSizer, GridCanvas, GridFrame, TitleText, StatusText, ItemWidgets, ItemTable, Contents"));
		});

		It("that configure the panel are editable anywhere and read-write from scripts", [this]
		{
			for (const TCHAR* Name : Configuration)
			{
				const FProperty* Property = PanelProperty(Name);
				if (!Property)
				{
					continue;
				}
				TestTrue(*FString::Printf(TEXT("%s is editable"), Name), Property->HasAnyPropertyFlags(CPF_Edit));
				TestTrue(*FString::Printf(TEXT("%s is visible to scripts"), Name), Property->HasAnyPropertyFlags(CPF_BlueprintVisible));
				TestFalse(*FString::Printf(TEXT("%s is read-only or limited to instances or templates"), Name),
					Property->HasAnyPropertyFlags(CPF_BlueprintReadOnly | CPF_DisableEditOnInstance | CPF_DisableEditOnTemplate));
				TestFalse(*FString::Printf(TEXT("%s is transient or config"), Name), Property->HasAnyPropertyFlags(CPF_Transient | CPF_Config));
			}
			TestEqual(TEXT("Layout is one byte"), PanelProperty(TEXT("Layout"))->GetSize(), 1);
			TestEqual(TEXT("CellSize is a float"), PanelProperty(TEXT("CellSize"))->GetSize(), 4);
		});

#if WITH_EDITORONLY_DATA
		It("sit in the Tollmere categories with their editor limits, conditions and tooltips", [this]
		{
			TestEqual(TEXT("bLoadOnConstruct category"), Meta(TEXT("bLoadOnConstruct"), TEXT("Category")), TEXT("Tollmere"));
			TestEqual(TEXT("Provider category"), Meta(TEXT("Provider"), TEXT("Category")), TEXT("Tollmere|Identity"));
			TestEqual(TEXT("Ticket category"), Meta(TEXT("Ticket"), TEXT("Category")), TEXT("Tollmere|Identity"));
			for (const TCHAR* Name : { TEXT("ContainerKind"), TEXT("Layout"), TEXT("GridWidth"), TEXT("GridHeight"), TEXT("SlotCount"), TEXT("SlotColumns") })
			{
				TestEqual(*FString::Printf(TEXT("%s category"), Name), Meta(Name, TEXT("Category")), TEXT("Tollmere|Container"));
			}
			for (const TCHAR* Name : { TEXT("CellSize"), TEXT("PanelColour"), TEXT("CellColour"), TEXT("AccentColour"), TEXT("Title") })
			{
				TestEqual(*FString::Printf(TEXT("%s category"), Name), Meta(Name, TEXT("Category")), TEXT("Tollmere|Appearance"));
			}

			for (const TCHAR* Name : { TEXT("GridWidth"), TEXT("GridHeight") })
			{
				TestEqual(*FString::Printf(TEXT("%s minimum"), Name), Meta(Name, TEXT("ClampMin")), TEXT("1"));
				TestEqual(*FString::Printf(TEXT("%s condition"), Name), Meta(Name, TEXT("EditCondition")), TEXT("Layout == EQuorvelContainerLayout::Grid"));
				TestEqual(*FString::Printf(TEXT("%s hides"), Name), Meta(Name, TEXT("EditConditionHides")), TEXT(""));
			}
			for (const TCHAR* Name : { TEXT("SlotCount"), TEXT("SlotColumns") })
			{
				TestEqual(*FString::Printf(TEXT("%s minimum"), Name), Meta(Name, TEXT("ClampMin")), TEXT("1"));
				TestEqual(*FString::Printf(TEXT("%s condition"), Name), Meta(Name, TEXT("EditCondition")), TEXT("Layout == EQuorvelContainerLayout::Slots"));
				TestEqual(*FString::Printf(TEXT("%s hides"), Name), Meta(Name, TEXT("EditConditionHides")), TEXT(""));
			}
			TestEqual(TEXT("CellSize minimum"), Meta(TEXT("CellSize"), TEXT("ClampMin")), TEXT("16"));
			TestEqual(TEXT("Layout minimum"), Meta(TEXT("Layout"), TEXT("ClampMin")), TEXT("<none>"));
			TestEqual(TEXT("Layout condition"), Meta(TEXT("Layout"), TEXT("EditCondition")), TEXT("<none>"));

			TestEqual(TEXT("bLoadOnConstruct tooltip"), Meta(TEXT("bLoadOnConstruct"), TEXT("ToolTip")),
				TEXT("Loads as soon as the widget is constructed. Turn off to drive it yourself."));
			TestEqual(TEXT("Ticket tooltip"), Meta(TEXT("Ticket"), TEXT("ToolTip")), TEXT("For `anonymous`, simply the identifier to claim."));
			TestEqual(TEXT("SlotCount tooltip"), Meta(TEXT("SlotCount"), TEXT("ToolTip")), TEXT("Slots only: how many squares the container holds."));
			TestEqual(TEXT("CellSize tooltip"), Meta(TEXT("CellSize"), TEXT("ToolTip")), TEXT("Pixels per grid cell before layout scaling."));
		});
#endif

		It("that hold the panel's widgets, table and contents are followed by the collector but hidden from editors and scripts", [this]
		{
			for (const TCHAR* Name : PrivateReferences)
			{
				const FProperty* Property = PanelProperty(Name);
				if (!Property)
				{
					continue;
				}
				TestFalse(*FString::Printf(TEXT("%s is editable or visible to scripts"), Name), Property->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintAssignable));
				TestFalse(*FString::Printf(TEXT("%s is transient"), Name), Property->HasAnyPropertyFlags(CPF_Transient));
				TestTrue(*FString::Printf(TEXT("%s is private"), Name), Property->HasAnyPropertyFlags(CPF_NativeAccessSpecifierPrivate));
			}
			for (const TCHAR* Name : { TEXT("Root"), TEXT("GridSizer"), TEXT("GridCanvas"), TEXT("GridFrame"), TEXT("TitleText"), TEXT("StatusText"), TEXT("ItemWidgets") })
			{
				const FProperty* Property = PanelProperty(Name);
				const FArrayProperty* Array = CastField<FArrayProperty>(Property);
				const FProperty* Reference = Array ? Array->Inner : Property;
				TestTrue(*FString::Printf(TEXT("%s is an instanced reference"), Name), Reference && Reference->HasAnyPropertyFlags(CPF_InstancedReference));
			}
			TestFalse(TEXT("ItemTable is an instanced reference"), PanelProperty(TEXT("ItemTable"))->HasAnyPropertyFlags(CPF_InstancedReference));
#if WITH_EDITORONLY_DATA
			TestEqual(TEXT("ItemWidgets tooltip"), Meta(TEXT("ItemWidgets"), TEXT("ToolTip")), TEXT("Widgets drawn for the current contents, cleared before a redraw."));
			TestEqual(TEXT("Contents tooltip"), Meta(TEXT("Contents"), TEXT("ToolTip")), TEXT("The contents as last read, so a hit test does not have to re-parse widgets."));
			TestTrue(TEXT("GridSizer tooltip says why it exists"), Meta(TEXT("GridSizer"), TEXT("ToolTip")).Contains(TEXT("canvas panel reports no desired size"), ESearchCase::CaseSensitive));
#endif
		});
	});

	Describe("Delegates", [this]
	{
		It("are assignable from scripts but not editable as values", [this]
		{
			for (const TCHAR* Name : Delegates)
			{
				const FProperty* Property = PanelProperty(Name);
				TestNotNull(*FString::Printf(TEXT("%s is a multicast delegate"), Name), CastField<FMulticastInlineDelegateProperty>(Property));
				TestTrue(*FString::Printf(TEXT("%s is assignable"), Name), Property && Property->HasAnyPropertyFlags(CPF_BlueprintAssignable));
				TestFalse(*FString::Printf(TEXT("%s is editable"), Name), Property && Property->HasAnyPropertyFlags(CPF_Edit));
#if WITH_EDITORONLY_DATA
				TestEqual(*FString::Printf(TEXT("%s category"), Name), Meta(Name, TEXT("Category")), TEXT("Tollmere"));
#endif
			}
#if WITH_EDITORONLY_DATA
			TestEqual(TEXT("OnStashLoaded tooltip"), Meta(TEXT("OnStashLoaded"), TEXT("ToolTip")), TEXT("<none>"));
			TestEqual(TEXT("OnStashFailed tooltip"), Meta(TEXT("OnStashFailed"), TEXT("ToolTip")), TEXT("<none>"));
			TestEqual(TEXT("OnWithdrawAccepted tooltip"), Meta(TEXT("OnWithdrawAccepted"), TEXT("ToolTip")), TEXT("The platform released an item. Put it into the character's inventory now."));
			TestEqual(TEXT("OnTransferAccepted tooltip"), Meta(TEXT("OnTransferAccepted"), TEXT("ToolTip")), TEXT("A stack moved into this panel from another one."));
			TestTrue(TEXT("OnDepositAccepted tooltip explains the order"), Meta(TEXT("OnDepositAccepted"), TEXT("ToolTip")).Contains(TEXT("resync"), ESearchCase::CaseSensitive));
#endif
		});

		It("have signatures of the package, and transfers share the withdraw type", [this]
		{
			auto Signature = [this](const TCHAR* Name) -> const UFunction*
			{
				const FMulticastInlineDelegateProperty* Property = CastField<FMulticastInlineDelegateProperty>(PanelProperty(Name));
				if (!Property)
				{
					return nullptr;
				}
				const UFunction* Function = Property->SignatureFunction;
				return Function;
			};
			const UFunction* Loaded = Signature(TEXT("OnStashLoaded"));
			const UFunction* Deposit = Signature(TEXT("OnDepositAccepted"));
			const UFunction* Withdraw = Signature(TEXT("OnWithdrawAccepted"));
			if (!TestTrue(TEXT("Every signature is registered"), Loaded && Deposit && Withdraw && Signature(TEXT("OnStashFailed"))))
			{
				return;
			}
			TestEqual(TEXT("Loaded signature"), Loaded->GetName(), TEXT("QuorvelStashLoaded__DelegateSignature"));
			TestEqual(TEXT("Failed signature"), Signature(TEXT("OnStashFailed"))->GetName(), TEXT("QuorvelStashFailed__DelegateSignature"));
			TestEqual(TEXT("Deposit signature"), Deposit->GetName(), TEXT("QuorvelDepositAccepted__DelegateSignature"));
			TestEqual(TEXT("Withdraw signature"), Withdraw->GetName(), TEXT("QuorvelWithdrawAccepted__DelegateSignature"));
			TestTrue(TEXT("Transfers use the withdraw signature"), Signature(TEXT("OnTransferAccepted")) == Withdraw);
			TestEqual(TEXT("Signature outer"), Loaded->GetOuter()->GetPathName(), TEXT("/Script/QuorvelUI"));
			TestEqual(TEXT("Deposit parameters"), JoinedPropertyNames(Deposit, true), TEXT("ItemId:FName, Quantity:int32, SourceSlot:int32"));
			TestEqual(TEXT("Withdraw parameters"), JoinedPropertyNames(Withdraw, true), TEXT("Instance:FQuorvelItemInstance"));
		});
	});

	Describe("Functions", [this]
	{
		It("are eight native final functions with their parameters, flags, category and tooltip", [this]
		{
			struct FExpected
			{
				const TCHAR* Name;
				/** Name:PropertyClass, with "&" for a parameter scripts receive back. */
				const TCHAR* Parameters;
				bool bPure;
				const TCHAR* ToolTipStart;
			};
			const FExpected Expected[] = {
				{ TEXT("LoadStash"), TEXT(""), false, TEXT("Signs the player in, ensures their stash exists, and draws it.") },
				{ TEXT("ShowContainer"), TEXT("Container:StructProperty"), false, TEXT("Draws a stash already in hand, for a caller doing its own auth.") },
				{ TEXT("DepositItem"), TEXT("ItemId:NameProperty, Quantity:IntProperty, X:IntProperty, Y:IntProperty, SourceSlot:IntProperty"), false,
					TEXT("Puts an item into the stash, then asks the game to remove its own copy.") },
				{ TEXT("WithdrawInstance"), TEXT("Instance:StructProperty"), false, TEXT("Takes an item out of the stash, then asks the game to add it.") },
				{ TEXT("TransferFrom"), TEXT("Source:ObjectProperty, Instance:StructProperty, X:IntProperty, Y:IntProperty"), false,
					TEXT("Moves a stack out of another panel and into this one.") },
				{ TEXT("CellAtScreenPosition"), TEXT("ScreenPosition:StructProperty, OutX:IntProperty&, OutY:IntProperty&, ReturnValue:BoolProperty&"), true,
					TEXT("The grid cell under a screen position, for an interface placing something where the player let go.") },
				{ TEXT("InstanceAtScreenPosition"), TEXT("ScreenPosition:StructProperty, OutInstance:StructProperty&, ReturnValue:BoolProperty&"), true,
					TEXT("The stack under a screen position, for a UI picking one up.") },
				{ TEXT("IsReady"), TEXT("ReturnValue:BoolProperty&"), true, TEXT("True once a player is signed in and their stash has been read.") },
			};
			for (const FExpected& Entry : Expected)
			{
				const UFunction* Function = PanelFunction(Entry.Name);
				if (!Function)
				{
					continue;
				}
				TestTrue(*FString::Printf(TEXT("%s belongs to the panel"), Entry.Name), Function->GetOuter() == UQuorvelStashPanel::StaticClass());
				TestTrue(*FString::Printf(TEXT("%s is native, final, public and callable"), Entry.Name),
					Function->HasAllFunctionFlags(FUNC_Native | FUNC_Final | FUNC_Public | FUNC_BlueprintCallable));
				TestEqual(*FString::Printf(TEXT("%s is pure"), Entry.Name), Function->HasAnyFunctionFlags(FUNC_BlueprintPure), Entry.bPure);
				TestEqual(*FString::Printf(TEXT("%s is const"), Entry.Name), Function->HasAnyFunctionFlags(FUNC_Const), Entry.bPure);
				TestFalse(*FString::Printf(TEXT("%s is an event"), Entry.Name), Function->HasAnyFunctionFlags(FUNC_BlueprintEvent));

				TArray<FString> Parameters;
				for (TFieldIterator<FProperty> It(Function); It && It->HasAnyPropertyFlags(CPF_Parm); ++It)
				{
					// A const reference is passed as an out parameter that scripts cannot write, as the engine marks it.
					const bool bOut = It->HasAnyPropertyFlags(CPF_OutParm) && !It->HasAnyPropertyFlags(CPF_ConstParm);
					Parameters.Add(It->GetName() + TEXT(":") + It->GetClass()->GetName() + (bOut ? TEXT("&") : TEXT("")));
				}
				TestEqual(*FString::Printf(TEXT("%s parameters"), Entry.Name), FString::Join(Parameters, TEXT(", ")), Entry.Parameters);
#if WITH_EDITORONLY_DATA
				TestEqual(*FString::Printf(TEXT("%s category"), Entry.Name), Function->GetMetaData(TEXT("Category")), TEXT("Tollmere"));
				TestTrue(*FString::Printf(TEXT("%s tooltip"), Entry.Name), Function->GetMetaData(TEXT("ToolTip")).StartsWith(Entry.ToolTipStart, ESearchCase::CaseSensitive));
#endif
			}
			const UFunction* Transfer = PanelFunction(TEXT("TransferFrom"));
			const FProperty* Instance = Transfer ? Transfer->FindPropertyByName(FName(TEXT("Instance"))) : nullptr;
			TestTrue(TEXT("TransferFrom takes the stack by const reference"), Instance && Instance->HasAllPropertyFlags(CPF_ConstParm | CPF_ReferenceParm));
		});

#if WITH_EDITORONLY_DATA
		It("give scripts the defaults of their optional parameters", [this]
		{
			const UFunction* Deposit = PanelFunction(TEXT("DepositItem"));
			const UFunction* Transfer = PanelFunction(TEXT("TransferFrom"));
			if (!Deposit || !Transfer)
			{
				return;
			}
			TestEqual(TEXT("Deposit quantity"), Deposit->GetMetaData(TEXT("CPP_Default_Quantity")), TEXT("1"));
			TestEqual(TEXT("Deposit X"), Deposit->GetMetaData(TEXT("CPP_Default_X")), TEXT("-1"));
			TestEqual(TEXT("Deposit Y"), Deposit->GetMetaData(TEXT("CPP_Default_Y")), TEXT("-1"));
			TestEqual(TEXT("Deposit source slot"), Deposit->GetMetaData(TEXT("CPP_Default_SourceSlot")), TEXT("-1"));
			TestFalse(TEXT("Deposit item id has a default"), Deposit->HasMetaData(TEXT("CPP_Default_ItemId")));
			TestEqual(TEXT("Transfer X"), Transfer->GetMetaData(TEXT("CPP_Default_X")), TEXT("-1"));
			TestEqual(TEXT("Transfer Y"), Transfer->GetMetaData(TEXT("CPP_Default_Y")), TEXT("-1"));
			TestFalse(TEXT("Transfer source has a default"), Transfer->HasMetaData(TEXT("CPP_Default_Source")));
		});
#endif
	});

	It("declares three script events a subclass may implement, with no native body", [this]
	{
		struct FExpected
		{
			const TCHAR* Name;
			const TCHAR* Parameters;
		};
		const FExpected Events[] = {
			{ TEXT("OnDeposited"), TEXT("ItemId:FName, Quantity:int32, SourceSlot:int32") },
			{ TEXT("OnWithdrawn"), TEXT("Instance:FQuorvelItemInstance") },
			{ TEXT("OnTransferred"), TEXT("Instance:FQuorvelItemInstance") },
		};
		for (const FExpected& Event : Events)
		{
			const UFunction* Function = PanelFunction(Event.Name);
			if (!Function)
			{
				continue;
			}
			TestTrue(*FString::Printf(TEXT("%s is a script event"), Event.Name), Function->HasAllFunctionFlags(FUNC_Event | FUNC_BlueprintEvent));
			TestFalse(*FString::Printf(TEXT("%s is native"), Event.Name), Function->HasAnyFunctionFlags(FUNC_Native));
			TestEqual(*FString::Printf(TEXT("%s parameters"), Event.Name), UE::Quorvel::Tests::JoinedPropertyNames(Function, true), Event.Parameters);
#if WITH_EDITORONLY_DATA
			TestEqual(*FString::Printf(TEXT("%s category"), Event.Name), Function->GetMetaData(TEXT("Category")), TEXT("Tollmere|Interaction"));
#endif
		}
#if WITH_EDITORONLY_DATA
		const UFunction* Withdrawn = PanelFunction(TEXT("OnWithdrawn"));
		TestEqual(TEXT("OnWithdrawn tooltip"), Withdrawn ? Withdrawn->GetMetaData(TEXT("ToolTip")) : FString(), TEXT("The platform released an item; the game must now take ownership of it."));
#endif
	});
}

#endif
