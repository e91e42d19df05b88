// A non-owning view of a run of characters, not necessarily null-terminated.
#pragma once

#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"

#include <concepts>
#include <type_traits>

template <typename CharType>
class TStringView;

namespace UE::Core::Private
{
	// A contiguous range of characters: anything with free GetData/GetNum functions found by lookup,
	// as FString and TArray provide.
	// The view itself is ruled out first, so that copying a view never asks whether it is a range.
	template <typename RangeType, typename CharType>
	concept TIsCharRange = !std::is_same_v<std::remove_cvref_t<RangeType>, TStringView<CharType>>
		&& !std::is_pointer_v<std::remove_cvref_t<RangeType>>
		&& requires(const RangeType& Range)
	{
		{ GetData(Range) } -> std::convertible_to<const CharType*>;
		{ GetNum(Range) } -> std::convertible_to<int32>;
	};

	// Called from here rather than from the view, whose own GetData member would hide the range's.
	template <typename RangeType>
	constexpr auto GetRangeData(const RangeType& Range)
	{
		return GetData(Range);
	}

	template <typename RangeType>
	constexpr int32 GetRangeNum(const RangeType& Range)
	{
		return int32(GetNum(Range));
	}
}

template <typename CharType>
class TStringView
{
public:
	using ElementType = CharType;
	using ViewType = TStringView<CharType>;

	constexpr TStringView() = default;

	constexpr TStringView(const CharType* InData)
		: DataPtr(InData)
		, Size(InData ? TCString<CharType>::Strlen(InData) : 0)
	{
	}

	constexpr TStringView(const CharType* InData, int32 InSize)
		: DataPtr(InData)
		, Size(InSize)
	{
		check(InSize >= 0);
	}

	template <typename RangeType>
		requires UE::Core::Private::TIsCharRange<RangeType, CharType>
	constexpr TStringView(const RangeType& Range)
		: DataPtr(UE::Core::Private::GetRangeData(Range))
		, Size(UE::Core::Private::GetRangeNum(Range))
	{
	}

	const CharType& operator[](int32 Index) const
	{
		checkf(Index >= 0 && Index < Size, "Index out of bounds");
		return DataPtr[Index];
	}

	constexpr const CharType* GetData() const
	{
		return DataPtr;
	}

	constexpr int32 Len() const
	{
		return Size;
	}

	constexpr bool IsEmpty() const
	{
		return Size == 0;
	}

	ViewType Left(int32 CharCount) const
	{
		return ViewType(DataPtr, Clamp(CharCount));
	}

	ViewType LeftChop(int32 CharCount) const
	{
		return ViewType(DataPtr, Clamp(Size - CharCount));
	}

	ViewType Right(int32 CharCount) const
	{
		const int32 Count = Clamp(CharCount);
		return ViewType(DataPtr + Size - Count, Count);
	}

	ViewType RightChop(int32 CharCount) const
	{
		const int32 Count = Clamp(Size - CharCount);
		return ViewType(DataPtr + Size - Count, Count);
	}

	ViewType Mid(int32 Position, int32 CharCount = 0x7fffffff) const
	{
		const int32 Start = Clamp(Position);
		const int64 End = int64(Start) + (CharCount < 0 ? 0 : CharCount);
		return ViewType(DataPtr + Start, int32((End > Size ? Size : End) - Start));
	}

	ViewType TrimStart() const
	{
		int32 Start = 0;
		while (Start < Size && TChar<CharType>::IsWhitespace(DataPtr[Start]))
		{
			++Start;
		}
		return ViewType(DataPtr + Start, Size - Start);
	}

	ViewType TrimEnd() const
	{
		int32 NewSize = Size;
		while (NewSize > 0 && TChar<CharType>::IsWhitespace(DataPtr[NewSize - 1]))
		{
			--NewSize;
		}
		return ViewType(DataPtr, NewSize);
	}

	ViewType TrimStartAndEnd() const
	{
		return TrimStart().TrimEnd();
	}

	bool Equals(ViewType Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return Size == Other.Size && CompareN(DataPtr, Other.DataPtr, Size, SearchCase) == 0;
	}

	int32 Compare(ViewType Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		const int32 Common = Size < Other.Size ? Size : Other.Size;
		if (const int32 Diff = CompareN(DataPtr, Other.DataPtr, Common, SearchCase))
		{
			return Diff;
		}
		return Size - Other.Size;
	}

	bool StartsWith(ViewType Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Prefix.Size <= Size && CompareN(DataPtr, Prefix.DataPtr, Prefix.Size, SearchCase) == 0;
	}

	bool EndsWith(ViewType Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Suffix.Size <= Size && CompareN(DataPtr + Size - Suffix.Size, Suffix.DataPtr, Suffix.Size, SearchCase) == 0;
	}

	int32 Find(ViewType Search, int32 StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		for (int32 Index = StartPosition < 0 ? 0 : StartPosition; Index + Search.Size <= Size; ++Index)
		{
			if (CompareN(DataPtr + Index, Search.DataPtr, Search.Size, SearchCase) == 0)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool Contains(ViewType Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Find(Search, 0, SearchCase) != INDEX_NONE;
	}

	bool FindChar(CharType Search, int32& OutIndex) const
	{
		for (int32 Index = 0; Index < Size; ++Index)
		{
			if (DataPtr[Index] == Search)
			{
				OutIndex = Index;
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}

	bool FindLastChar(CharType Search, int32& OutIndex) const
	{
		for (int32 Index = Size - 1; Index >= 0; --Index)
		{
			if (DataPtr[Index] == Search)
			{
				OutIndex = Index;
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}

	constexpr const CharType* begin() const
	{
		return DataPtr;
	}

	constexpr const CharType* end() const
	{
		return DataPtr + Size;
	}

	// Comparison operators ignore case, like the engine's string operators.
	friend bool operator==(ViewType Lhs, ViewType Rhs)
	{
		return Lhs.Equals(Rhs, ESearchCase::IgnoreCase);
	}

	friend bool operator<(ViewType Lhs, ViewType Rhs)
	{
		return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0;
	}

private:
	static int32 CompareN(const CharType* A, const CharType* B, int32 Count, ESearchCase::Type SearchCase)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			CharType CharA = A[Index];
			CharType CharB = B[Index];
			if (SearchCase == ESearchCase::IgnoreCase)
			{
				CharA = FGenericPlatformStricmp::ToLowerAscii(CharA);
				CharB = FGenericPlatformStricmp::ToLowerAscii(CharB);
			}
			if (CharA != CharB)
			{
				return std::make_unsigned_t<CharType>(CharA) < std::make_unsigned_t<CharType>(CharB) ? -1 : 1;
			}
		}
		return 0;
	}

	constexpr int32 Clamp(int32 Count) const
	{
		return Count < 0 ? 0 : (Count > Size ? Size : Count);
	}

	const CharType* DataPtr = nullptr;
	int32 Size = 0;
};

template <typename CharType>
constexpr const CharType* GetData(TStringView<CharType> View)
{
	return View.GetData();
}

template <typename CharType>
constexpr int32 GetNum(TStringView<CharType> View)
{
	return View.Len();
}

typedef TStringView<TCHAR> FStringView;
typedef TStringView<WIDECHAR> FWideStringView;
typedef TStringView<ANSICHAR> FAnsiStringView;
typedef TStringView<UTF8CHAR> FUtf8StringView;

#define TEXTVIEW(String) FStringView(TEXT(String), int32(UE_ARRAY_COUNT(TEXT(String)) - 1))
