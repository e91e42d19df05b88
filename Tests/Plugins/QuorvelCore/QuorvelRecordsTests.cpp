#include "QuorvelClient.h"
#include "QuorvelContainer.h"
#include "QuorvelContainerLayout.h"
#include "QuorvelError.h"
#include "QuorvelItemInstance.h"
#include "QuorvelLog.h"
#include "Containers/StringConv.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
	std::string Utf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	std::vector<std::string> FieldNames(const UStruct* Struct)
	{
		std::vector<std::string> Names;
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			Names.push_back(Utf8(It->GetName()));
		}
		return Names;
	}
}

TEST(QuorvelRecords, AFreshStackHasNoPlaceAndAOneByOneFootprint)
{
	const FQuorvelItemInstance Instance;
	EXPECT_TRUE(Instance.InstanceId.IsEmpty());
	EXPECT_TRUE(Instance.ItemId.IsNone());
	EXPECT_EQ(Instance.Quantity, 0);
	EXPECT_EQ(Instance.SlotIndex, -1);
	EXPECT_TRUE(Instance.SlotKey.IsEmpty());
	EXPECT_EQ(Instance.X, -1);
	EXPECT_EQ(Instance.Y, -1);
	EXPECT_FALSE(Instance.bRotated);
	EXPECT_EQ(Instance.GridW, 1);
	EXPECT_EQ(Instance.GridH, 1);
}

TEST(QuorvelRecords, CopiesCarryTheFieldsThePanelNeverReads)
{
	FQuorvelItemInstance Instance;
	Instance.SlotKey = TEXT("k7");
	Instance.bRotated = true;
	FQuorvelContainer Container;
	Container.Layout = TEXT("SLOTS");
	Container.Items.Add(Instance);

	const FQuorvelContainer Copy = Container;
	ASSERT_EQ(Copy.Items.Num(), 1);
	EXPECT_EQ(Utf8(Copy.Items[0].SlotKey), "k7");
	EXPECT_TRUE(Copy.Items[0].bRotated);
	EXPECT_EQ(Utf8(Copy.Layout), "SLOTS");
}

TEST(QuorvelRecords, ReflectedFieldsAppearInDeclarationOrder)
{
	EXPECT_EQ(FieldNames(FQuorvelItemInstance::StaticStruct()),
		(std::vector<std::string>{ "InstanceId", "ItemId", "Quantity", "SlotIndex", "SlotKey", "X", "Y", "bRotated", "GridW", "GridH" }));
	EXPECT_EQ(FieldNames(FQuorvelContainer::StaticStruct()), (std::vector<std::string>{ "ContainerId", "Kind", "Layout", "Items" }));
	EXPECT_EQ(FieldNames(FQuorvelError::StaticStruct()), (std::vector<std::string>{ "HttpStatus", "Code", "Message", "RequestId", "bRetryable" }));
	EXPECT_EQ(Utf8(FQuorvelItemInstance::StaticStruct()->GetPathName()), "/Script/QuorvelCore.QuorvelItemInstance");
}

TEST(QuorvelRecords, LayoutEnumerationIsGridThenSlotsInOneByte)
{
	const UEnum* Enum = StaticEnum<EQuorvelContainerLayout>();
	ASSERT_NE(Enum, nullptr);
	EXPECT_EQ(sizeof(EQuorvelContainerLayout), 1u);
	EXPECT_EQ(Utf8(Enum->GetNameStringByValue(0)), "Grid");
	EXPECT_EQ(Utf8(Enum->GetNameStringByValue(1)), "Slots");
}

TEST(QuorvelClientKeys, EveryIdempotencyKeyIsNewAndNonEmpty)
{
	const FString First = FQuorvelClient::NewIdempotencyKey();
	const FString Second = FQuorvelClient::NewIdempotencyKey();
	EXPECT_FALSE(First.IsEmpty());
	EXPECT_NE(Utf8(First), Utf8(Second));
}

TEST(QuorvelLogCategory, IsNamedLogQuorvelAndAdmitsDisplayAndWarningByDefault)
{
	EXPECT_EQ(Utf8(LogQuorvel.GetCategoryName().ToString()), "LogQuorvel");
	EXPECT_FALSE(LogQuorvel.IsSuppressed(ELogVerbosity::Display));
	EXPECT_FALSE(LogQuorvel.IsSuppressed(ELogVerbosity::Warning));
}
