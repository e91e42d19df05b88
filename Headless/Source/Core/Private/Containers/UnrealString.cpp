#include "Containers/UnrealString.h"

#include "Containers/StringConv.h"

#include <cstdlib>

namespace
{
	int32 ClampCount(int32 Count, int32 Max)
	{
		return Count < 0 ? 0 : (Count > Max ? Max : Count);
	}

	bool MatchesAt(const TCHAR* At, const TCHAR* Search, int32 SearchLen, ESearchCase::Type SearchCase)
	{
		return SearchCase == ESearchCase::CaseSensitive
			? FCString::Strncmp(At, Search, SearchLen) == 0
			: FCString::Strnicmp(At, Search, SearchLen) == 0;
	}
}

FString::FString(const TCHAR* Str)
{
	if (Str && *Str)
	{
		AppendChars(Str, FCString::Strlen(Str));
	}
}

FString::FString(const ANSICHAR* Str)
	: FString(Str ? FCStringAnsi::Strlen(Str) : 0, Str)
{
}

FString::FString(const UTF8CHAR* Str)
	: FString(Str ? FCStringAnsi::Strlen(reinterpret_cast<const ANSICHAR*>(Str)) : 0, Str)
{
}

FString::FString(int32 InCount, const TCHAR* InSrc)
{
	check(InCount >= 0);
	if (InCount > 0 && InSrc)
	{
		AppendChars(InSrc, InCount);
	}
}

FString::FString(int32 InCount, const ANSICHAR* InSrc)
{
	check(InCount >= 0);
	if (InCount > 0 && InSrc)
	{
		Data.SetNumUninitialized(InCount + 1);
		for (int32 Index = 0; Index < InCount; ++Index)
		{
			Data[Index] = TCHAR(uint8(InSrc[Index]));
		}
		Data[InCount] = 0;
	}
}

FString::FString(int32 InCount, const UTF8CHAR* InSrc)
{
	check(InCount >= 0);
	if (InCount > 0 && InSrc)
	{
		UE::Core::Private::AppendUtf8AsTChar(Data, InSrc, InCount);
		Data.Add(0);
	}
}

FString::FString(FStringView View)
{
	if (!View.IsEmpty())
	{
		AppendChars(View.GetData(), View.Len());
	}
}

FString FString::ConstructWithSlack(const TCHAR* Str, int32 ExtraSlack)
{
	FString Result;
	const int32 Length = Str ? FCString::Strlen(Str) : 0;
	Result.Reserve(Length + ExtraSlack);
	Result.AppendChars(Str, Length);
	return Result;
}

FString& FString::operator=(const TCHAR* Str)
{
	// Str may point into this string, so build the copy before dropping the old contents.
	FString Copy(Str);
	*this = MoveTemp(Copy);
	return *this;
}

void FString::Empty(int32 Slack)
{
	Data.Empty(Slack ? Slack + 1 : 0);
}

void FString::Reset(int32 NewReservedSize)
{
	Data.Reset(NewReservedSize ? NewReservedSize + 1 : 0);
}

void FString::Reserve(int32 CharacterCount)
{
	check(CharacterCount >= 0);
	if (CharacterCount > 0)
	{
		Data.Reserve(CharacterCount + 1);
	}
}

void FString::Shrink()
{
	Data.Shrink();
}

FString& FString::AppendChar(TCHAR InChar)
{
	check(InChar != 0);
	if (Data.Num() == 0)
	{
		Data.AddUninitialized(2);
	}
	else
	{
		Data.AddUninitialized(1);
	}
	Data[Data.Num() - 2] = InChar;
	Data[Data.Num() - 1] = 0;
	return *this;
}

FString& FString::AppendChars(const TCHAR* Str, int32 Count)
{
	check(Count >= 0);
	if (Count == 0)
	{
		return *this;
	}
	check(Str != nullptr);
	// Str may alias our own buffer, which growing would free; remember it as an offset.
	const TCHAR* const OldData = Data.GetData();
	const bool bAliases = OldData && Str >= OldData && Str < OldData + Data.Num();
	const PTRINT AliasOffset = bAliases ? Str - OldData : 0;

	const int32 OldLen = Len();
	Data.SetNumUninitialized(OldLen + Count + 1);
	const TCHAR* Source = bAliases ? Data.GetData() + AliasOffset : Str;
	FMemory::Memmove(Data.GetData() + OldLen, Source, SIZE_T(Count) * sizeof(TCHAR));
	Data[OldLen + Count] = 0;
	return *this;
}

FString& FString::Append(const TCHAR* Str, int32 Count)
{
	return AppendChars(Str, Count);
}

FString& FString::PathAppend(const TCHAR* Str, int32 StrLength)
{
	const int32 OldLen = Len();
	if (OldLen > 0 && Data[OldLen - 1] != TEXT('/') && Data[OldLen - 1] != TEXT('\\') && (StrLength == 0 || Str[0] != TEXT('/')))
	{
		AppendChar(TEXT('/'));
	}
	return AppendChars(Str, StrLength);
}

void FString::InsertAt(int32 Index, TCHAR Character)
{
	check(Character != 0);
	InsertAt(Index, Chr(Character));
}

void FString::InsertAt(int32 Index, const FString& Characters)
{
	checkf(Index >= 0 && Index <= Len(), "Insert position out of bounds");
	if (Characters.IsEmpty())
	{
		return;
	}
	if (IsEmpty())
	{
		*this = Characters;
		return;
	}
	Data.Insert(Characters.Data.GetData(), Characters.Len(), Index);
}

void FString::RemoveAt(int32 Index, int32 Count, EAllowShrinking AllowShrinking)
{
	checkf(Index >= 0 && Count >= 0 && Index + Count <= Len(), "Remove range out of bounds");
	if (Count == 0)
	{
		return;
	}
	if (Count == Len())
	{
		Data.Empty();
		return;
	}
	Data.RemoveAt(Index, Count, AllowShrinking);
}

bool FString::RemoveFromStart(const TCHAR* InPrefix, ESearchCase::Type SearchCase)
{
	if (!StartsWith(InPrefix, SearchCase))
	{
		return false;
	}
	RemoveAt(0, FCString::Strlen(InPrefix));
	return true;
}

bool FString::RemoveFromStart(const FString& InPrefix, ESearchCase::Type SearchCase)
{
	return RemoveFromStart(*InPrefix, SearchCase);
}

bool FString::RemoveFromEnd(const TCHAR* InSuffix, ESearchCase::Type SearchCase)
{
	if (!EndsWith(InSuffix, SearchCase))
	{
		return false;
	}
	const int32 SuffixLen = FCString::Strlen(InSuffix);
	RemoveAt(Len() - SuffixLen, SuffixLen);
	return true;
}

bool FString::RemoveFromEnd(const FString& InSuffix, ESearchCase::Type SearchCase)
{
	return RemoveFromEnd(*InSuffix, SearchCase);
}

FString FString::Left(int32 Count) const
{
	return FString(ClampCount(Count, Len()), **this);
}

FString FString::LeftChop(int32 Count) const
{
	return FString(ClampCount(Len() - Count, Len()), **this);
}

FString FString::Right(int32 Count) const
{
	const int32 Kept = ClampCount(Count, Len());
	return FString(Kept, **this + Len() - Kept);
}

FString FString::RightChop(int32 Count) const
{
	const int32 Kept = ClampCount(Len() - Count, Len());
	return FString(Kept, **this + Len() - Kept);
}

FString FString::Mid(int32 Start, int32 Count) const
{
	if (Count < 0)
	{
		return FString();
	}
	// A negative start eats into the count, as the engine does.
	const int32 Length = Len();
	const int32 ClampedStart = ClampCount(Start, Length);
	const int64 RequestedEnd = int64(Start) + Count;
	const int32 End = int32(RequestedEnd < ClampedStart ? ClampedStart : (RequestedEnd > Length ? Length : RequestedEnd));
	return FString(End - ClampedStart, **this + ClampedStart);
}

void FString::LeftInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Kept = ClampCount(Count, Len());
	RemoveAt(Kept, Len() - Kept, AllowShrinking);
}

void FString::LeftChopInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Kept = ClampCount(Len() - Count, Len());
	RemoveAt(Kept, Len() - Kept, AllowShrinking);
}

void FString::RightInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Kept = ClampCount(Count, Len());
	RemoveAt(0, Len() - Kept, AllowShrinking);
}

void FString::RightChopInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Kept = ClampCount(Len() - Count, Len());
	RemoveAt(0, Len() - Kept, AllowShrinking);
}

void FString::MidInline(int32 Start, int32 Count, EAllowShrinking AllowShrinking)
{
	*this = Mid(Start, Count);
}

int32 FString::Find(const TCHAR* SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	if (SubStr == nullptr)
	{
		return INDEX_NONE;
	}
	const int32 Length = Len();
	const int32 SubLen = FCString::Strlen(SubStr);
	if (SearchDir == ESearchDir::FromStart)
	{
		const int32 First = (StartPosition == INDEX_NONE || Length == 0) ? 0 : ClampCount(StartPosition, Length - 1);
		for (int32 Index = First; Index + SubLen <= Length; ++Index)
		{
			if (MatchesAt(**this + Index, SubStr, SubLen, SearchCase))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	// From the end, a match must finish at or before StartPosition.
	const int32 Limit = (StartPosition == INDEX_NONE || StartPosition >= Length) ? Length : StartPosition;
	for (int32 Index = Limit - (SubLen > 0 ? SubLen : 1); Index >= 0; --Index)
	{
		if (MatchesAt(**this + Index, SubStr, SubLen, SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool FString::FindChar(TCHAR InChar, int32& Index) const
{
	return FStringView(*this).FindChar(InChar, Index);
}

bool FString::FindLastChar(TCHAR InChar, int32& Index) const
{
	return FStringView(*this).FindLastChar(InChar, Index);
}

bool FString::StartsWith(const TCHAR* InPrefix, ESearchCase::Type SearchCase) const
{
	if (InPrefix == nullptr || *InPrefix == 0)
	{
		return false;
	}
	const int32 PrefixLen = FCString::Strlen(InPrefix);
	return PrefixLen <= Len() && MatchesAt(**this, InPrefix, PrefixLen, SearchCase);
}

bool FString::StartsWith(const FString& InPrefix, ESearchCase::Type SearchCase) const
{
	return StartsWith(*InPrefix, SearchCase);
}

bool FString::EndsWith(const TCHAR* InSuffix, ESearchCase::Type SearchCase) const
{
	if (InSuffix == nullptr || *InSuffix == 0)
	{
		return false;
	}
	const int32 SuffixLen = FCString::Strlen(InSuffix);
	return SuffixLen <= Len() && MatchesAt(**this + Len() - SuffixLen, InSuffix, SuffixLen, SearchCase);
}

bool FString::EndsWith(const FString& InSuffix, ESearchCase::Type SearchCase) const
{
	return EndsWith(*InSuffix, SearchCase);
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return Len() == Other.Len() && MatchesAt(**this, *Other, Len(), SearchCase);
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return SearchCase == ESearchCase::CaseSensitive ? FCString::Strcmp(**this, *Other) : FCString::Stricmp(**this, *Other);
}

bool FString::Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Position = Find(InS, SearchCase, SearchDir);
	if (Position < 0)
	{
		return false;
	}
	if (LeftS)
	{
		*LeftS = Left(Position);
	}
	if (RightS)
	{
		*RightS = Mid(Position + InS.Len());
	}
	return true;
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty) const
{
	checkf(pchDelim != nullptr && *pchDelim != 0, "ParseIntoArray needs a delimiter");
	OutArray.Reset();
	const int32 DelimLen = FCString::Strlen(pchDelim);
	const TCHAR* Start = **this;
	while (true)
	{
		const TCHAR* At = FCString::Strstr(Start, pchDelim);
		const int32 PartLen = At ? int32(At - Start) : FCString::Strlen(Start);
		if (!InCullEmpty || PartLen > 0)
		{
			OutArray.Emplace(PartLen, Start);
		}
		if (!At)
		{
			break;
		}
		Start = At + DelimLen;
	}
	return OutArray.Num();
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty) const
{
	OutArray.Reset();
	const TCHAR* Cursor = **this;
	const TCHAR* PartStart = Cursor;
	for (;; ++Cursor)
	{
		if (*Cursor == 0 || *Cursor == TEXT('\n') || *Cursor == TEXT('\r'))
		{
			const int32 PartLen = int32(Cursor - PartStart);
			if (!InCullEmpty || PartLen > 0)
			{
				OutArray.Emplace(PartLen, PartStart);
			}
			if (*Cursor == 0)
			{
				break;
			}
			if (*Cursor == TEXT('\r') && Cursor[1] == TEXT('\n'))
			{
				++Cursor;
			}
			PartStart = Cursor + 1;
		}
	}
	return OutArray.Num();
}

FString FString::ToUpper() const
{
	FString Result(*this);
	Result.ToUpperInline();
	return Result;
}

FString FString::ToLower() const
{
	FString Result(*this);
	Result.ToLowerInline();
	return Result;
}

void FString::ToUpperInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToUpper(Char);
	}
}

void FString::ToLowerInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToLower(Char);
	}
}

FString FString::TrimStart() const
{
	return FString(FStringView(*this).TrimStart());
}

FString FString::TrimEnd() const
{
	return FString(FStringView(*this).TrimEnd());
}

FString FString::TrimStartAndEnd() const
{
	return FString(FStringView(*this).TrimStartAndEnd());
}

void FString::TrimStartInline()
{
	*this = TrimStart();
}

void FString::TrimEndInline()
{
	*this = TrimEnd();
}

void FString::TrimStartAndEndInline()
{
	*this = TrimStartAndEnd();
}

int32 FString::ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase)
{
	if (SearchText == nullptr || *SearchText == 0 || IsEmpty())
	{
		return 0;
	}
	const int32 SearchLen = FCString::Strlen(SearchText);
	const int32 ReplacementLen = ReplacementText ? FCString::Strlen(ReplacementText) : 0;
	FString Result;
	int32 Count = 0;
	int32 CopiedUpTo = 0;
	for (int32 Index = 0; Index + SearchLen <= Len();)
	{
		if (MatchesAt(**this + Index, SearchText, SearchLen, SearchCase))
		{
			Result.AppendChars(**this + CopiedUpTo, Index - CopiedUpTo);
			Result.AppendChars(ReplacementText, ReplacementLen);
			Index += SearchLen;
			CopiedUpTo = Index;
			++Count;
		}
		else
		{
			++Index;
		}
	}
	if (Count > 0)
	{
		Result.AppendChars(**this + CopiedUpTo, Len() - CopiedUpTo);
		*this = MoveTemp(Result);
	}
	return Count;
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result(*this);
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

void FString::ReplaceCharInline(TCHAR SearchChar, TCHAR ReplacementChar, ESearchCase::Type SearchCase)
{
	check(ReplacementChar != 0);
	const bool bFold = SearchCase == ESearchCase::IgnoreCase && FChar::IsAlpha(SearchChar);
	const TCHAR Folded = FGenericPlatformStricmp::ToLowerAscii(SearchChar);
	for (TCHAR& Char : *this)
	{
		if (Char == SearchChar || (bFold && FGenericPlatformStricmp::ToLowerAscii(Char) == Folded))
		{
			Char = ReplacementChar;
		}
	}
}

FString FString::FromInt(int32 Num)
{
	return Printf(TEXT("%d"), Num);
}

FString FString::SanitizeFloat(double InFloat, int32 InMinFractionalDigits)
{
	if (InFloat == 0.0)
	{
		InFloat = 0.0;
	}
	FString Result = Printf(TEXT("%f"), InFloat);
	if (!Result.IsNumeric())
	{
		// inf or nan: nothing to tidy.
		return Result;
	}

	int32 DotIndex = INDEX_NONE;
	Result.FindChar(TEXT('.'), DotIndex);
	check(DotIndex != INDEX_NONE);
	int32 End = Result.Len();
	while (End > DotIndex + 1 && Result[End - 1] == TEXT('0'))
	{
		--End;
	}
	const int32 FractionalDigits = End - DotIndex - 1;
	if (FractionalDigits < InMinFractionalDigits)
	{
		Result.LeftInline(End);
		for (int32 Pad = FractionalDigits; Pad < InMinFractionalDigits; ++Pad)
		{
			Result.AppendChar(TEXT('0'));
		}
	}
	else
	{
		Result.LeftInline(FractionalDigits == 0 ? DotIndex : End);
	}
	return Result;
}

FString FString::Chr(TCHAR Ch)
{
	FString Result;
	if (Ch != 0)
	{
		Result.AppendChar(Ch);
	}
	return Result;
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	check(NumCharacters >= 0 && Char != 0);
	FString Result;
	Result.Reserve(NumCharacters);
	for (int32 Index = 0; Index < NumCharacters; ++Index)
	{
		Result.AppendChar(Char);
	}
	return Result;
}

uint32 GetTypeHash(FStringView View)
{
	// FNV-1a over ASCII-folded code units, so strings equal under operator== hash alike.
	uint32 Hash = 2166136261u;
	for (const TCHAR Char : View)
	{
		const uint16 Unit = uint16(FGenericPlatformStricmp::ToLowerAscii(Char));
		Hash = (Hash ^ (Unit & 0xff)) * 16777619u;
		Hash = (Hash ^ (Unit >> 8)) * 16777619u;
	}
	return Hash;
}

namespace
{
	// Whole-buffer parse: the parser must consume everything but trailing whitespace.
	template <typename ValueType, typename ParseFunc>
	bool TryParseWhole(ValueType& OutValue, const TCHAR* Buffer, ParseFunc Parse)
	{
		if (Buffer == nullptr)
		{
			return false;
		}
		const TCHAR* Start = Buffer;
		while (FChar::IsWhitespace(*Start))
		{
			++Start;
		}
		if (*Start == 0)
		{
			return false;
		}
		TCHAR* End = nullptr;
		const ValueType Value = Parse(Start, &End);
		if (End == Start)
		{
			return false;
		}
		while (FChar::IsWhitespace(*End))
		{
			++End;
		}
		if (*End != 0)
		{
			return false;
		}
		OutValue = Value;
		return true;
	}
}

bool LexTryParseString(int64& OutValue, const TCHAR* Buffer)
{
	return TryParseWhole(OutValue, Buffer, [](const TCHAR* Start, TCHAR** End) { return FCString::Strtoi64(Start, End, 10); });
}

bool LexTryParseString(double& OutValue, const TCHAR* Buffer)
{
	return TryParseWhole(OutValue, Buffer, [](const TCHAR* Start, TCHAR** End) { return FCString::Strtod(Start, End); });
}

bool LexTryParseString(bool& OutValue, const TCHAR* Buffer)
{
	static const TCHAR* const Words[] = { TEXT("true"), TEXT("yes"), TEXT("on"), TEXT("false"), TEXT("no"), TEXT("off") };
	for (int32 Index = 0; Index < int32(UE_ARRAY_COUNT(Words)); ++Index)
	{
		if (Buffer && FCString::Stricmp(Buffer, Words[Index]) == 0)
		{
			OutValue = Index < 3;
			return true;
		}
	}
	int64 Number = 0;
	if (LexTryParseString(Number, Buffer))
	{
		OutValue = Number != 0;
		return true;
	}
	return false;
}
