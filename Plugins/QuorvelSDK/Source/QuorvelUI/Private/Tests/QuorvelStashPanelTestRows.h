// Item table rows for the panel's icon automation tests, one per lookup rule. Reflected types cannot
// sit inside the tests' WITH_DEV_AUTOMATION_TESTS block, so this header has none.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "UObject/SoftObjectPtr.h"

#include "QuorvelStashPanelTestRows.generated.h"

/** Two icon fields: the one declared first decides, even when it is empty. */
USTRUCT()
struct FQuorvelTestThumbnailFirstRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UTexture2D> Thumbnail;

	UPROPERTY()
	TObjectPtr<UTexture2D> Icon;
};

/** Fields with icon names that cannot hold a texture, and one whose name only looks like one. */
USTRUCT()
struct FQuorvelTestPassedOverRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	FString Icon;

	UPROPERTY()
	FName Item_Icon;

	UPROPERTY()
	TWeakObjectPtr<UTexture2D> Thumbnail;

	UPROPERTY()
	TObjectPtr<UTexture2D> Icon_Small;

	UPROPERTY()
	TObjectPtr<UTexture2D> Image;
};

/** A soft reference under the member name a script-defined structure gives its field. */
USTRUCT()
struct FQuorvelTestSuffixedSoftRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TSoftObjectPtr<UTexture2D> ItemIcon_2_0123456789abcdef0123456789ABCDEF;
};

/** A matching field that holds something other than a texture. */
USTRUCT()
struct FQuorvelTestObjectIconRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UObject> Icon;

	UPROPERTY()
	TObjectPtr<UTexture2D> Image;
};

USTRUCT()
struct FQuorvelTestBaseIconRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UTexture2D> Icon;
};

/** Its own fields come before its base structure's. */
USTRUCT()
struct FQuorvelTestDerivedIconRow : public FQuorvelTestBaseIconRow
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UTexture2D> Image;
};

/** No icon field of its own: its base structure's is found. */
USTRUCT()
struct FQuorvelTestPlainDerivedRow : public FQuorvelTestBaseIconRow
{
	GENERATED_BODY()

	UPROPERTY()
	FString Description;
};
