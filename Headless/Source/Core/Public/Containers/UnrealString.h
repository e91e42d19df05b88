// The engine's string: UTF-16 code units in a TArray<TCHAR>, null-terminated whenever it is not empty,
// so an empty string owns no memory. Operators compare without regard to ASCII case, as the engine's do;
// Equals and Compare take the case option explicitly.
#pragma once

#include "Containers/AllowShrinking.h"
#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <limits>
#include <type_traits>

class FString;

namespace UE::Core::Private
{
	// One printf argument with its C type class kept, so the formatter can convert it as C would
	// and refuse classes (FString, structs) that C varargs would silently corrupt.
	struct FPrintfArg
	{
		enum class EKind : uint8
		{
			Signed,
			Unsigned,
			Float,
			String,
			AnsiString,
			Pointer,
		};

		EKind Kind;
		union
		{
			int64 Signed;
			uint64 Unsigned;
			double Float;
			const TCHAR* String;
			const ANSICHAR* AnsiString;
			const void* Pointer;
		};

		template <typename T>
		static FPrintfArg Make(T Value)
		{
			FPrintfArg Arg;
			if constexpr (std::is_same_v<T, bool>)
			{
				Arg.Kind = EKind::Signed;
				Arg.Signed = Value ? 1 : 0;
			}
			else if constexpr (std::is_enum_v<T>)
			{
				return Make(static_cast<std::underlying_type_t<T>>(Value));
			}
			else if constexpr (std::is_integral_v<T> && std::is_signed_v<T>)
			{
				Arg.Kind = EKind::Signed;
				Arg.Signed = int64(Value);
			}
			else if constexpr (std::is_integral_v<T>)
			{
				Arg.Kind = EKind::Unsigned;
				Arg.Unsigned = uint64(Value);
			}
			else if constexpr (std::is_floating_point_v<T>)
			{
				Arg.Kind = EKind::Float;
				Arg.Float = double(Value);
			}
			else if constexpr (std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, TCHAR> && std::is_pointer_v<T>)
			{
				Arg.Kind = EKind::String;
				Arg.String = Value;
			}
			else if constexpr (std::is_pointer_v<T> && (std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, ANSICHAR>
				|| std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, UTF8CHAR>))
			{
				Arg.Kind = EKind::AnsiString;
				Arg.AnsiString = reinterpret_cast<const ANSICHAR*>(Value);
			}
			else if constexpr (std::is_pointer_v<T> || std::is_null_pointer_v<T>)
			{
				Arg.Kind = EKind::Pointer;
				Arg.Pointer = static_cast<const void*>(Value);
			}
			else
			{
				static_assert(sizeof(T) == 0, "Printf takes only scalars and character pointers; pass *String for an FString");
			}
			return Arg;
		}
	};

	CORE_API void AppendPrintf(FString& Out, const TCHAR* Format, const FPrintfArg* Args, int32 NumArgs);

	template <typename FmtType>
	constexpr bool TIsTCharArray = std::is_array_v<std::remove_cvref_t<FmtType>>
		&& std::is_same_v<std::remove_cv_t<std::remove_extent_t<std::remove_cvref_t<FmtType>>>, TCHAR>;
}

class FString
{
public:
	using ElementType = TCHAR;
	using DataType = TArray<TCHAR>;

	// Found by argument-dependent lookup, which is how string views and generic code see a string's characters.
	friend FORCEINLINE TCHAR* GetData(FString& String)
	{
		return String.Data.GetData();
	}

	friend FORCEINLINE const TCHAR* GetData(const FString& String)
	{
		return String.Data.GetData();
	}

	friend FORCEINLINE int32 GetNum(const FString& String)
	{
		return String.Len();
	}

	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) = default;

	CORE_API FString(const TCHAR* Str);
	/** ANSI text: each byte becomes the code unit of the same value. */
	CORE_API FString(const ANSICHAR* Str);
	/** UTF-8 text; malformed sequences become U+FFFD. */
	CORE_API FString(const UTF8CHAR* Str);
	CORE_API FString(int32 InCount, const TCHAR* InSrc);
	CORE_API FString(int32 InCount, const ANSICHAR* InSrc);
	CORE_API FString(int32 InCount, const UTF8CHAR* InSrc);
	CORE_API explicit FString(FStringView View);

	CORE_API FString& operator=(const TCHAR* Str);

	static FString ConstructFromPtrSize(const TCHAR* Str, int32 Size)
	{
		return FString(Size, Str);
	}

	static FString ConstructFromPtrSize(const UTF8CHAR* Str, int32 Size)
	{
		return FString(Size, Str);
	}

	CORE_API static FString ConstructWithSlack(const TCHAR* Str, int32 ExtraSlack);

	/** Never null: an empty string gives a pointer to an empty literal. */
	FORCEINLINE const TCHAR* operator*() const
	{
		return Data.Num() ? Data.GetData() : TEXT("");
	}

	FORCEINLINE TCHAR& operator[](int32 Index)
	{
		checkf(IsValidIndex(Index), "String index out of bounds");
		return Data.GetData()[Index];
	}

	FORCEINLINE const TCHAR& operator[](int32 Index) const
	{
		checkf(IsValidIndex(Index), "String index out of bounds");
		return Data.GetData()[Index];
	}

	FORCEINLINE DataType& GetCharArray()
	{
		return Data;
	}

	FORCEINLINE const DataType& GetCharArray() const
	{
		return Data;
	}

	FORCEINLINE int32 Len() const
	{
		return Data.Num() ? Data.Num() - 1 : 0;
	}

	FORCEINLINE bool IsEmpty() const
	{
		return Data.Num() <= 1;
	}

	FORCEINLINE bool IsValidIndex(int32 Index) const
	{
		return Index >= 0 && Index < Len();
	}

	FORCEINLINE SIZE_T GetAllocatedSize() const
	{
		return Data.GetAllocatedSize();
	}

	CORE_API void Empty(int32 Slack = 0);
	CORE_API void Reset(int32 NewReservedSize = 0);
	CORE_API void Reserve(int32 CharacterCount);
	CORE_API void Shrink();

	// Appending
	CORE_API FString& AppendChar(TCHAR InChar);
	CORE_API FString& AppendChars(const TCHAR* Str, int32 Count);
	CORE_API FString& Append(const TCHAR* Str, int32 Count);

	FString& Append(const TCHAR* Str)
	{
		return AppendChars(Str, Str ? FCString::Strlen(Str) : 0);
	}

	FString& Append(const FString& Str)
	{
		return AppendChars(Str.Data.GetData(), Str.Len());
	}

	FString& Append(FStringView Str)
	{
		return AppendChars(Str.GetData(), Str.Len());
	}

	FString& operator+=(const TCHAR* Str)
	{
		return Append(Str);
	}

	FString& operator+=(const FString& Str)
	{
		return Append(Str);
	}

	FString& operator+=(FStringView Str)
	{
		return Append(Str);
	}

	FString& operator+=(TCHAR InChar)
	{
		return AppendChar(InChar);
	}

	/** Joins as a path: adds one '/' between the parts unless either side already has it. */
	CORE_API FString& PathAppend(const TCHAR* Str, int32 StrLength);

	FString& operator/=(const TCHAR* Str)
	{
		return PathAppend(Str, FCString::Strlen(Str));
	}

	FString& operator/=(const FString& Str)
	{
		return PathAppend(*Str, Str.Len());
	}

	CORE_API void InsertAt(int32 Index, TCHAR Character);
	CORE_API void InsertAt(int32 Index, const FString& Characters);
	CORE_API void RemoveAt(int32 Index, int32 Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Yes);
	CORE_API bool RemoveFromStart(const TCHAR* InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API bool RemoveFromStart(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API bool RemoveFromEnd(const TCHAR* InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API bool RemoveFromEnd(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	// Substrings: counts are clamped to the string, never checked.
	CORE_API FString Left(int32 Count) const;
	CORE_API FString LeftChop(int32 Count) const;
	CORE_API FString Right(int32 Count) const;
	CORE_API FString RightChop(int32 Count) const;
	CORE_API FString Mid(int32 Start, int32 Count = 0x7fffffff) const;
	CORE_API void LeftInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Yes);
	CORE_API void LeftChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Yes);
	CORE_API void RightInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Yes);
	CORE_API void RightChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Yes);
	CORE_API void MidInline(int32 Start, int32 Count = 0x7fffffff, EAllowShrinking AllowShrinking = EAllowShrinking::Yes);

	// Searching
	CORE_API int32 Find(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;

	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(*SubStr, SearchCase, SearchDir, StartPosition);
	}

	bool Contains(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}

	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(*SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}

	CORE_API bool FindChar(TCHAR InChar, int32& Index) const;
	CORE_API bool FindLastChar(TCHAR InChar, int32& Index) const;

	/** As in the engine, an empty prefix or suffix never matches. */
	CORE_API bool StartsWith(const TCHAR* InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	CORE_API bool StartsWith(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	CORE_API bool EndsWith(const TCHAR* InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	CORE_API bool EndsWith(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	CORE_API bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	CORE_API int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	CORE_API bool Split(const FString& InS, FString* LeftS, FString* RightS,
		ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;

	/** Splits on a case-sensitive delimiter; returns the number of parts, dropping empty ones when asked. */
	CORE_API int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty = true) const;
	CORE_API int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty = true) const;

	// Transforming
	CORE_API FString ToUpper() const;
	CORE_API FString ToLower() const;
	CORE_API void ToUpperInline();
	CORE_API void ToLowerInline();

	CORE_API FString TrimStart() const;
	CORE_API FString TrimEnd() const;
	CORE_API FString TrimStartAndEnd() const;
	CORE_API void TrimStartInline();
	CORE_API void TrimEndInline();
	CORE_API void TrimStartAndEndInline();

	/** Replaces every non-overlapping occurrence, left to right; returns how many. */
	CORE_API int32 ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	CORE_API void ReplaceCharInline(TCHAR SearchChar, TCHAR ReplacementChar, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive);

	// Conversion
	bool IsNumeric() const
	{
		return !IsEmpty() && FCString::IsNumeric(**this);
	}

	bool ToBool() const
	{
		return FCString::ToBool(**this);
	}

	CORE_API static FString FromInt(int32 Num);
	/** "%f" with trailing zeros dropped, keeping at least InMinFractionalDigits decimals; never "-0". */
	CORE_API static FString SanitizeFloat(double InFloat, int32 InMinFractionalDigits = 1);
	CORE_API static FString Chr(TCHAR Ch);
	CORE_API static FString ChrN(int32 NumCharacters, TCHAR Char);

	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			Result += Element;
			bFirst = false;
		}
		return Result;
	}

	/** C printf over TCHAR: %s takes a const TCHAR* (never an FString), %hs an ANSI string. */
	template <typename FmtType, typename... Types>
	static FString Printf(const FmtType& Fmt, Types... Args)
	{
		static_assert(UE::Core::Private::TIsTCharArray<FmtType>, "Formatting string must be a TCHAR array (use TEXT)");
		FString Result;
		Result.AppendfImpl(Fmt, Args...);
		return Result;
	}

	template <typename FmtType, typename... Types>
	FString& Appendf(const FmtType& Fmt, Types... Args)
	{
		static_assert(UE::Core::Private::TIsTCharArray<FmtType>, "Formatting string must be a TCHAR array (use TEXT)");
		AppendfImpl(Fmt, Args...);
		return *this;
	}

	// Comparison operators ignore case, as in the engine.
	friend bool operator==(const FString& Lhs, const FString& Rhs)
	{
		return Lhs.Equals(Rhs, ESearchCase::IgnoreCase);
	}

	friend bool operator==(const FString& Lhs, const TCHAR* Rhs)
	{
		return FCString::Stricmp(*Lhs, Rhs ? Rhs : TEXT("")) == 0;
	}

	friend bool operator==(const FString& Lhs, FStringView Rhs)
	{
		return FStringView(Lhs).Equals(Rhs, ESearchCase::IgnoreCase);
	}

	friend bool operator<(const FString& Lhs, const FString& Rhs)
	{
		return FCString::Stricmp(*Lhs, *Rhs) < 0;
	}

	friend bool operator<(const FString& Lhs, const TCHAR* Rhs)
	{
		return FCString::Stricmp(*Lhs, Rhs) < 0;
	}

	friend bool operator<(const TCHAR* Lhs, const FString& Rhs)
	{
		return FCString::Stricmp(Lhs, *Rhs) < 0;
	}

	friend bool operator>(const FString& Lhs, const FString& Rhs)
	{
		return Rhs < Lhs;
	}

	friend bool operator<=(const FString& Lhs, const FString& Rhs)
	{
		return !(Rhs < Lhs);
	}

	friend bool operator>=(const FString& Lhs, const FString& Rhs)
	{
		return !(Lhs < Rhs);
	}

	friend FString operator+(const FString& Lhs, const FString& Rhs)
	{
		return ConcatImpl(Lhs, *Rhs, Rhs.Len());
	}

	friend FString operator+(FString&& Lhs, const FString& Rhs)
	{
		Lhs.Append(Rhs);
		return MoveTemp(Lhs);
	}

	friend FString operator+(const FString& Lhs, const TCHAR* Rhs)
	{
		return ConcatImpl(Lhs, Rhs, FCString::Strlen(Rhs));
	}

	friend FString operator+(FString&& Lhs, const TCHAR* Rhs)
	{
		Lhs.Append(Rhs);
		return MoveTemp(Lhs);
	}

	friend FString operator+(const TCHAR* Lhs, const FString& Rhs)
	{
		FString Result;
		const int32 LhsLen = FCString::Strlen(Lhs);
		Result.Reserve(LhsLen + Rhs.Len());
		Result.AppendChars(Lhs, LhsLen);
		Result.Append(Rhs);
		return Result;
	}

	friend FString operator/(const FString& Lhs, const TCHAR* Rhs)
	{
		FString Result(Lhs);
		Result /= Rhs;
		return Result;
	}

	friend FString operator/(const FString& Lhs, const FString& Rhs)
	{
		FString Result(Lhs);
		Result /= Rhs;
		return Result;
	}

	// Iteration over the characters, without the terminator.
	TCHAR* begin()
	{
		return Data.GetData();
	}

	const TCHAR* begin() const
	{
		return Data.GetData();
	}

	TCHAR* end()
	{
		return Data.GetData() + Len();
	}

	const TCHAR* end() const
	{
		return Data.GetData() + Len();
	}

private:
	template <typename... Types>
	void AppendfImpl(const TCHAR* Fmt, Types... Args)
	{
		if constexpr (sizeof...(Args) == 0)
		{
			UE::Core::Private::AppendPrintf(*this, Fmt, nullptr, 0);
		}
		else
		{
			const UE::Core::Private::FPrintfArg PackedArgs[] = { UE::Core::Private::FPrintfArg::Make(Args)... };
			UE::Core::Private::AppendPrintf(*this, Fmt, PackedArgs, int32(sizeof...(Args)));
		}
	}

	static FString ConcatImpl(const FString& Lhs, const TCHAR* Rhs, int32 RhsLen)
	{
		FString Result;
		Result.Reserve(Lhs.Len() + RhsLen);
		Result.Append(Lhs);
		Result.AppendChars(Rhs, RhsLen);
		return Result;
	}

	DataType Data;
};

/** Case-blind, to agree with operator==; a view of the same characters hashes alike, so maps keyed on FString can be searched with one. */
CORE_API uint32 GetTypeHash(FStringView View);

inline uint32 GetTypeHash(const FString& S)
{
	return GetTypeHash(FStringView(S));
}

// Lexical conversions used by generic code (config, reflection, command lines).
inline FString LexToString(const FString& Str)
{
	return Str;
}

inline FString LexToString(FString&& Str)
{
	return MoveTemp(Str);
}

inline FString LexToString(const TCHAR* Str)
{
	return FString(Str);
}

inline FString LexToString(bool Value)
{
	return Value ? FString(TEXT("true")) : FString(TEXT("false"));
}

template <typename T>
	requires (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>)
FString LexToString(T Value)
{
	if constexpr (std::is_floating_point_v<T>)
	{
		return FString::Printf(TEXT("%f"), Value);
	}
	else if constexpr (std::is_signed_v<T>)
	{
		return FString::Printf(TEXT("%lld"), (long long)Value);
	}
	else
	{
		return FString::Printf(TEXT("%llu"), (unsigned long long)Value);
	}
}

inline FString LexToSanitizedString(double Value)
{
	return FString::SanitizeFloat(Value);
}

inline void LexFromString(FString& OutValue, const TCHAR* Buffer)
{
	OutValue = Buffer;
}

inline void LexFromString(bool& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::ToBool(Buffer);
}

template <typename T>
	requires (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>)
void LexFromString(T& OutValue, const TCHAR* Buffer)
{
	if constexpr (std::is_floating_point_v<T>)
	{
		OutValue = T(FCString::Atod(Buffer));
	}
	else if constexpr (std::is_signed_v<T>)
	{
		OutValue = T(FCString::Atoi64(Buffer));
	}
	else
	{
		OutValue = T(FCString::Strtoui64(Buffer, nullptr, 10));
	}
}

/** Like LexFromString, but false unless the whole buffer is a number (surrounding whitespace allowed). */
CORE_API bool LexTryParseString(int64& OutValue, const TCHAR* Buffer);
CORE_API bool LexTryParseString(double& OutValue, const TCHAR* Buffer);
CORE_API bool LexTryParseString(bool& OutValue, const TCHAR* Buffer);

template <typename T>
	requires (std::is_integral_v<T> && !std::is_same_v<T, bool> && !std::is_same_v<T, int64>)
bool LexTryParseString(T& OutValue, const TCHAR* Buffer)
{
	int64 Wide = 0;
	if (!LexTryParseString(Wide, Buffer) || Wide < int64(std::numeric_limits<T>::min())
		|| (Wide > 0 && uint64(Wide) > uint64(std::numeric_limits<T>::max())))
	{
		return false;
	}
	OutValue = T(Wide);
	return true;
}

inline bool LexTryParseString(float& OutValue, const TCHAR* Buffer)
{
	double Wide = 0.0;
	if (!LexTryParseString(Wide, Buffer))
	{
		return false;
	}
	OutValue = float(Wide);
	return true;
}
