// FName: a case-blind identifier interned in a global, thread-safe table.
//
// Names behave as in an editor build of the engine (case-preserving names): every FName remembers the
// exact casing it was made from and prints it, while comparison and hashing use the first casing ever
// registered, so FName("Sword") == FName("SWORD") and each still prints as written. The empty string
// and "None" in any casing are NAME_None; NAME_None and FName() print "None".
//
// A trailing "_<digits>" is kept apart as a number, as the engine does: "Item_3" is stored as "Item"
// with internal number 4 (0 meaning no number), and prints back as "Item_3". Digits with a leading
// zero ("Item_03") or too large for an int32 stay part of the plain name.
#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Templates/TypeHash.h"

#define NAME_NO_NUMBER_INTERNAL 0
#define NAME_EXTERNAL_TO_INTERNAL(x) (x + 1)
#define NAME_INTERNAL_TO_EXTERNAL(x) (x - 1)
#define NAME_NO_NUMBER NAME_INTERNAL_TO_EXTERNAL(NAME_NO_NUMBER_INTERNAL)
#define NAME_SIZE 1024

enum EName : uint32
{
	NAME_None = 0,
};

enum EFindName
{
	/** Only finds an existing name; gives NAME_None when there is none. */
	FNAME_Find,
	/** Adds the name to the table when it is not there yet. */
	FNAME_Add,
};

/** Index of one entry of the name table. */
struct FNameEntryId
{
	constexpr FNameEntryId() = default;

	static constexpr FNameEntryId FromUnstableInt(uint32 Value)
	{
		FNameEntryId Id;
		Id.Value = Value;
		return Id;
	}

	constexpr uint32 ToUnstableInt() const
	{
		return Value;
	}

	constexpr bool IsNone() const
	{
		return Value == 0;
	}

	constexpr explicit operator bool() const
	{
		return Value != 0;
	}

	friend constexpr bool operator==(FNameEntryId A, FNameEntryId B)
	{
		return A.Value == B.Value;
	}

	/** Orders by table position: fast and stable within a process, not alphabetical. */
	friend constexpr bool operator<(FNameEntryId A, FNameEntryId B)
	{
		return A.Value < B.Value;
	}

	friend constexpr uint32 GetTypeHash(FNameEntryId Id)
	{
		return Id.Value;
	}

private:
	uint32 Value = 0;
};

class FName
{
public:
	constexpr FName() = default;

	constexpr FName(EName Name)
		: FName()
	{
	}

	CORE_API FName(const TCHAR* Name, EFindName FindType = FNAME_Add);
	CORE_API FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	CORE_API FName(const FString& Name, EFindName FindType = FNAME_Add);
	CORE_API FName(FStringView Name, EFindName FindType = FNAME_Add);
	CORE_API FName(int32 Len, const TCHAR* Name, EFindName FindType = FNAME_Add);
	/** Name with an explicit internal number: 0 means none, N prints as "_<N-1>". */
	CORE_API FName(const TCHAR* Name, int32 InNumber, EFindName FindType = FNAME_Add);

	constexpr FName(FName Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex)
		, DisplayIndex(Other.DisplayIndex)
		, Number(uint32(InNumber))
	{
	}

	constexpr FNameEntryId GetComparisonIndex() const
	{
		return ComparisonIndex;
	}

	constexpr FNameEntryId GetDisplayIndex() const
	{
		return DisplayIndex;
	}

	/** Internal number: 0 when the name has none. */
	constexpr int32 GetNumber() const
	{
		return int32(Number);
	}

	constexpr void SetNumber(int32 NewNumber)
	{
		Number = uint32(NewNumber);
	}

	constexpr bool IsNone() const
	{
		return ComparisonIndex.IsNone() && Number == NAME_NO_NUMBER_INTERNAL;
	}

	/** Whether the indices refer to entries of the table. */
	CORE_API bool IsValid() const;

	CORE_API FString ToString() const;
	CORE_API void ToString(FString& Out) const;
	CORE_API void AppendString(FString& Out) const;
	/** The name without its number suffix. */
	CORE_API FString GetPlainNameString() const;

	/** Compares the printed names without regard to case, then the numbers. */
	CORE_API int32 Compare(const FName& Other) const;

	bool LexicalLess(const FName& Other) const
	{
		return Compare(Other) < 0;
	}

	/** Orders by table position: fast and stable within one run, not alphabetical. */
	bool FastLess(const FName& Other) const
	{
		if (ComparisonIndex == Other.ComparisonIndex)
		{
			return Number < Other.Number;
		}
		return ComparisonIndex < Other.ComparisonIndex;
	}

	constexpr bool IsEqual(const FName& Other) const
	{
		return ComparisonIndex == Other.ComparisonIndex && Number == Other.Number;
	}

	friend constexpr bool operator==(const FName& A, const FName& B)
	{
		return A.IsEqual(B);
	}

	friend constexpr bool operator==(const FName& A, EName B)
	{
		return A.IsNone() && B == NAME_None;
	}

	/** Case-blind comparison with a string, without adding it to the table. */
	friend CORE_API bool operator==(const FName& A, const TCHAR* B);

	friend bool operator==(const FName& A, const FString& B)
	{
		return A == *B;
	}

	friend constexpr uint32 GetTypeHash(const FName& Name)
	{
		return GetTypeHash(Name.ComparisonIndex) + Name.Number * 0x9e3779b9u;
	}

private:
	void Init(const TCHAR* Name, int32 Len, int32 InNumber, bool bSplitNumber, EFindName FindType);

	FNameEntryId ComparisonIndex;
	FNameEntryId DisplayIndex;
	uint32 Number = NAME_NO_NUMBER_INTERNAL;
};

inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}

inline void LexFromString(FName& OutValue, const TCHAR* Buffer)
{
	OutValue = FName(Buffer);
}

/** Orders names alphabetically, for sorted output. */
struct FNameLexicalLess
{
	bool operator()(const FName& A, const FName& B) const
	{
		return A.LexicalLess(B);
	}
};

/** Orders names by table position, for containers that only need some order. */
struct FNameFastLess
{
	bool operator()(const FName& A, const FName& B) const
	{
		return A.FastLess(B);
	}
};
