// The core module's automation tests: the project settings and where they come from, the records the
// panel and the game exchange, the client's idempotency keys and the log categories.
#include "Misc/AutomationTest.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Containers/Set.h"
#include "Misc/ConfigCacheIni.h"
#include "QuorvelClient.h"
#include "QuorvelContainer.h"
#include "QuorvelContainerLayout.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"
#include "QuorvelLog.h"
#include "QuorvelSettings.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace UE::Quorvel::Tests
{
	/** The names of a structure's properties, joined with ", ". */
	inline FString JoinedFieldNames(const UStruct* Struct)
	{
		TArray<FString> Names;
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			Names.Add(It->GetName());
		}
		return FString::Join(Names, TEXT(", "));
	}
}

BEGIN_DEFINE_SPEC(FQuorvelCoreSettingsTests, "Quorvel.Core.Settings", EAutomationTestFlags_ApplicationContextMask | EAutomationTestFlags::ProductFilter)
	/** Each setting with the text of its native default, as a config line would give it. */
	const TArray<TPair<const TCHAR*, const TCHAR*>> NativeDefaults = {
		{ TEXT("BaseUrl"), TEXT("http://127.0.0.1:8787") },
		{ TEXT("ItemTablePath"), TEXT("None") },
		{ TEXT("RequestTimeoutSeconds"), TEXT("10.0") },
		{ TEXT("MaxRetries"), TEXT("2") },
		{ TEXT("RetryBaseDelaySeconds"), TEXT("0.5") },
		{ TEXT("RetryMaxDelaySeconds"), TEXT("8.0") },
	};
END_DEFINE_SPEC(FQuorvelCoreSettingsTests)

void FQuorvelCoreSettingsTests::Define()
{
	It("are the class default object, kept in the game config under the class's own section", [this]
	{
		const UClass* Class = UQuorvelSettings::StaticClass();
		TestTrue(TEXT("Get is the class default"), &UQuorvelSettings::Get() == GetDefault<UQuorvelSettings>());
		TestTrue(TEXT("Config class"), Class->HasAllClassFlags(CLASS_Config | CLASS_DefaultConfig));
		TestEqual(TEXT("Config branch"), Class->GetConfigName(), FName(TEXT("Game")));
		TestEqual(TEXT("Section"), Class->GetPathName(), TEXT("/Script/QuorvelCore.QuorvelSettings"));
		for (const TPair<const TCHAR*, const TCHAR*>& Setting : NativeDefaults)
		{
			const FProperty* Property = Class->FindPropertyByName(FName(Setting.Key));
			TestTrue(*FString::Printf(TEXT("%s is an editable config setting"), Setting.Key), Property && Property->HasAllPropertyFlags(CPF_Config | CPF_Edit));
		}
#if WITH_EDITORONLY_DATA
		TestEqual(TEXT("Display name"), Class->GetMetaData(TEXT("DisplayName")), TEXT("Quorvel"));
#endif
	});

	It("take the project's configured values over their native defaults", [this]
	{
		const UQuorvelSettings* Settings = &UQuorvelSettings::Get();
		const FString Section = UQuorvelSettings::StaticClass()->GetPathName();
		// Holds each expected value, parsed from text by the property itself.
		UQuorvelSettings* Expected = NewObject<UQuorvelSettings>(GetTransientPackage());
		for (const TPair<const TCHAR*, const TCHAR*>& Setting : NativeDefaults)
		{
			const FProperty* Property = UQuorvelSettings::StaticClass()->FindPropertyByName(FName(Setting.Key));
			if (!TestNotNull(*FString::Printf(TEXT("Setting %s"), Setting.Key), Property))
			{
				continue;
			}
			FString Text = Setting.Value;
			const bool bConfigured = GConfig->GetString(*Section, Setting.Key, Text, GGameIni);
			Property->ImportText_InContainer(*Text, Expected, Expected, PPF_None);
			TestTrue(*FString::Printf(TEXT("%s is %s (%s)"), Setting.Key, *Text, bConfigured ? TEXT("configured") : TEXT("native default")),
				Property->Identical_InContainer(Settings, Expected));
		}
	});

#if WITH_EDITORONLY_DATA
	It("sit in the Platform, Items and Requests categories with their editor limits", [this]
	{
		auto Meta = [](const TCHAR* Name, const TCHAR* Key)
		{
			const FProperty* Property = UQuorvelSettings::StaticClass()->FindPropertyByName(FName(Name));
			const FString* Value = Property ? Property->FindMetaData(Key) : nullptr;
			return Value ? *Value : FString(TEXT("<none>"));
		};
		TestEqual(TEXT("BaseUrl category"), Meta(TEXT("BaseUrl"), TEXT("Category")), TEXT("Platform"));
		TestEqual(TEXT("ItemTablePath category"), Meta(TEXT("ItemTablePath"), TEXT("Category")), TEXT("Items"));
		TestEqual(TEXT("ItemTablePath classes"), Meta(TEXT("ItemTablePath"), TEXT("AllowedClasses")), TEXT("/Script/Engine.DataTable"));
		for (const TCHAR* Name : { TEXT("RequestTimeoutSeconds"), TEXT("MaxRetries"), TEXT("RetryBaseDelaySeconds"), TEXT("RetryMaxDelaySeconds") })
		{
			TestEqual(*FString::Printf(TEXT("%s category"), Name), Meta(Name, TEXT("Category")), TEXT("Requests"));
		}
		TestEqual(TEXT("RequestTimeoutSeconds minimum"), Meta(TEXT("RequestTimeoutSeconds"), TEXT("ClampMin")), TEXT("0.1"));
		TestEqual(TEXT("MaxRetries minimum"), Meta(TEXT("MaxRetries"), TEXT("ClampMin")), TEXT("0"));
		TestEqual(TEXT("BaseUrl tooltip"), Meta(TEXT("BaseUrl"), TEXT("ToolTip")), TEXT("Address of the platform, without a trailing slash; request paths are appended to it."));
	});
#endif
}

BEGIN_DEFINE_SPEC(FQuorvelCoreRecordsTests, "Quorvel.Core.Records", EAutomationTestFlags_ApplicationContextMask | EAutomationTestFlags::ProductFilter)
END_DEFINE_SPEC(FQuorvelCoreRecordsTests)

void FQuorvelCoreRecordsTests::Define()
{
	It("start as a stack with no place and a one by one footprint, and an error with no status that is not retryable", [this]
	{
		const FQuorvelItemInstance Instance;
		TestTrue(TEXT("InstanceId"), Instance.InstanceId.IsEmpty());
		TestTrue(TEXT("ItemId"), Instance.ItemId.IsNone());
		TestEqual(TEXT("Quantity"), Instance.Quantity, 0);
		TestEqual(TEXT("SlotIndex"), Instance.SlotIndex, -1);
		TestTrue(TEXT("SlotKey"), Instance.SlotKey.IsEmpty());
		TestEqual(TEXT("X"), Instance.X, -1);
		TestEqual(TEXT("Y"), Instance.Y, -1);
		TestFalse(TEXT("bRotated"), Instance.bRotated);
		TestEqual(TEXT("GridW"), Instance.GridW, 1);
		TestEqual(TEXT("GridH"), Instance.GridH, 1);

		const FQuorvelError Error;
		TestEqual(TEXT("HttpStatus"), Error.HttpStatus, 0);
		TestTrue(TEXT("Code, Message and RequestId"), Error.Code.IsEmpty() && Error.Message.IsEmpty() && Error.RequestId.IsEmpty());
		TestFalse(TEXT("bRetryable"), Error.bRetryable);
	});

	It("copy the fields the panel never reads along with the rest", [this]
	{
		FQuorvelItemInstance Instance;
		Instance.SlotKey = TEXT("k7");
		Instance.bRotated = true;
		FQuorvelContainer Container;
		Container.Layout = TEXT("SLOTS");
		Container.Items.Add(Instance);

		const FQuorvelContainer Copy = Container;
		if (TestEqual(TEXT("Items"), Copy.Items.Num(), 1))
		{
			TestEqual(TEXT("SlotKey"), Copy.Items[0].SlotKey, TEXT("k7"));
			TestTrue(TEXT("bRotated"), Copy.Items[0].bRotated);
		}
		TestEqual(TEXT("Layout, letter case kept"), Copy.Layout, TEXT("SLOTS"));
	});

	It("are reflected with their fields in declaration order, in the QuorvelCore package", [this]
	{
		using UE::Quorvel::Tests::JoinedFieldNames;
		TestEqual(TEXT("FQuorvelItemInstance"), JoinedFieldNames(FQuorvelItemInstance::StaticStruct()),
			TEXT("InstanceId, ItemId, Quantity, SlotIndex, SlotKey, X, Y, bRotated, GridW, GridH"));
		TestEqual(TEXT("FQuorvelContainer"), JoinedFieldNames(FQuorvelContainer::StaticStruct()), TEXT("ContainerId, Kind, Layout, Items"));
		TestEqual(TEXT("FQuorvelError"), JoinedFieldNames(FQuorvelError::StaticStruct()), TEXT("HttpStatus, Code, Message, RequestId, bRetryable"));
		TestEqual(TEXT("Path"), FQuorvelItemInstance::StaticStruct()->GetPathName(), TEXT("/Script/QuorvelCore.QuorvelItemInstance"));
	});

	It("name the layouts Grid and Slots, in that order, in one byte", [this]
	{
		const UEnum* Enum = StaticEnum<EQuorvelContainerLayout>();
		if (!TestNotNull(TEXT("Enum"), Enum))
		{
			return;
		}
		TestEqual(TEXT("Size"), int32(sizeof(EQuorvelContainerLayout)), 1);
		TestEqual(TEXT("0"), Enum->GetNameStringByValue(0), TEXT("Grid"));
		TestEqual(TEXT("1"), Enum->GetNameStringByValue(1), TEXT("Slots"));
	});
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelCoreIdempotencyKeyTest, "Quorvel.Core.Client.NewIdempotencyKey gives a different key on every call",
	EAutomationTestFlags_ApplicationContextMask | EAutomationTestFlags::ProductFilter)

bool FQuorvelCoreIdempotencyKeyTest::RunTest(const FString& Parameters)
{
	TSet<FString> Keys;
	for (int32 Call = 0; Call < 100; ++Call)
	{
		const FString Key = FQuorvelClient::NewIdempotencyKey();
		TestFalse(TEXT("Empty key"), Key.IsEmpty());
		Keys.Add(Key);
	}
	TestEqual(TEXT("Different keys"), Keys.Num(), 100);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FQuorvelCoreLogCategoriesTest, "Quorvel.Core.Log.The panel and the client log to categories of their own that show warnings",
	EAutomationTestFlags_ApplicationContextMask | EAutomationTestFlags::ProductFilter)

bool FQuorvelCoreLogCategoriesTest::RunTest(const FString& Parameters)
{
	TestEqual(TEXT("Panel category"), LogQuorvel.GetCategoryName(), FName(TEXT("LogQuorvel")));
	TestEqual(TEXT("Client category"), LogQuorvelClient.GetCategoryName(), FName(TEXT("LogQuorvelClient")));
	TestFalse(TEXT("Panel category hides Display"), LogQuorvel.IsSuppressed(ELogVerbosity::Display));
	TestFalse(TEXT("Panel category hides Warning"), LogQuorvel.IsSuppressed(ELogVerbosity::Warning));
	TestFalse(TEXT("Client category hides Warning"), LogQuorvelClient.IsSuppressed(ELogVerbosity::Warning));
	return true;
}

#endif
