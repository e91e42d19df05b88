// Row structures a project might give its item table, one per icon lookup rule.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Texture2D.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include "StashPanelIconRows.generated.h"

USTRUCT()
struct FThumbnailBeforeIconRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UTexture2D> Thumbnail;

	UPROPERTY()
	TObjectPtr<UTexture2D> Icon;
};

USTRUCT()
struct FEmptyIconBeforeImageRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	FString Description;

	UPROPERTY()
	TObjectPtr<UTexture2D> ICON;

	UPROPERTY()
	TObjectPtr<UTexture2D> Image;
};

/** Fields with icon names but kinds that cannot hold a texture are passed over. */
USTRUCT()
struct FPassedOverFieldsRow : public FTableRowBase
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

/** The member name a script-defined structure gives its field. */
USTRUCT()
struct FScriptStructRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TSoftObjectPtr<UTexture2D> ItemIcon_2_0123456789abcdef0123456789ABCDEF;
};

/** A matching field holding something that is not a texture. */
USTRUCT()
struct FMaterialIconRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UObject> Icon;

	UPROPERTY()
	TObjectPtr<UTexture2D> Image;
};

USTRUCT()
struct FBaseIconRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UTexture2D> Icon;
};

/** Its own fields are walked before the base structure's. */
USTRUCT()
struct FDerivedIconRow : public FBaseIconRow
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UTexture2D> Image;
};
