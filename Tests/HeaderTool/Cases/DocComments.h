// Copyright notices are not tooltips: a blank line stands between this and the first declaration.

#pragma once

#include "DocComments.generated.h"

/**
 *   A multi-line comment.
 *
 *   Lines are trimmed, inner blank lines kept.
 *
 */
UCLASS()
class UDocComments : public UObject
{
	GENERATED_BODY()

public:
	/**   One line, padded.   */
	UPROPERTY()
	int32 Padded;

	// First line comment
	//   second line comment
	UPROPERTY()
	int32 LineComments;

	/** Detached by a blank line. */

	UPROPERTY()
	int32 Undocumented;

	UPROPERTY()
	int32 Trailing; // Documents Trailing, not what follows.
	UPROPERTY()
	int32 AfterTrailing;

	/* A plain block comment counts too, "quotes" and \ backslashes kept. */
	UPROPERTY()
	int32 PlainBlock;

	/**
	 * Returns the thing.
	 * @param Index   Which one.
	 * @return        The thing.
	 */
	UFUNCTION(BlueprintCallable, Category = "Tollmere")
	int32 GetThing(int32 Index) const;
};

/** Fired when the stash has loaded. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FDocumentedDelegate, int32, StackCount);
