#include "Containers/StringConv.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "Misc/CString.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace
{
	std::string Utf8(const FString& String)
	{
		const FTCHARToUTF8 Converted(*String, String.Len());
		return std::string(reinterpret_cast<const char*>(Converted.Get()), size_t(Converted.Length()));
	}

	template <typename... Types>
	std::string CPrintf(const char* Format, Types... Args)
	{
		std::string Buffer(size_t(std::snprintf(nullptr, 0, Format, Args...)) + 1, '\0');
		std::snprintf(Buffer.data(), Buffer.size(), Format, Args...);
		Buffer.pop_back();
		return Buffer;
	}
}

TEST(StringTest, EmptyStringOwnsNoMemoryAndStillDereferencesToEmptyText)
{
	const FString Empty;
	EXPECT_EQ(Empty.GetCharArray().Num(), 0);
	ASSERT_NE(*Empty, nullptr);
	EXPECT_EQ(**Empty, TEXT('\0'));
	EXPECT_TRUE(FString(TEXT("")).GetCharArray().IsEmpty());

	FString Cleared(TEXT("abc"));
	Cleared.Empty();
	EXPECT_TRUE(Cleared.IsEmpty());
	EXPECT_EQ(**Cleared, TEXT('\0'));
}

TEST(StringTest, CharacterArrayIsNullTerminatedAndOneLongerThanTheString)
{
	FString String(TEXT("ab"));
	String += TEXT("cd");
	String.AppendChar(TEXT('e'));
	EXPECT_EQ(String.Len(), 5);
	EXPECT_EQ(String.GetCharArray().Num(), 6);
	EXPECT_EQ(String.GetCharArray().Last(), TEXT('\0'));
	EXPECT_EQ(FCString::Strlen(*String), 5);
}

TEST(StringTest, ConstructsFromAnsiUtf8AndCountedPointers)
{
	EXPECT_EQ(FString("plain"), TEXT("plain"));
	EXPECT_EQ(FString(3, TEXT("abcdef")), TEXT("abc"));
	EXPECT_EQ(FString(FStringView(TEXT("view"), 2)), TEXT("vi"));
	EXPECT_EQ(FString(u8"\u00e9t\u00e9"), TEXT("\u00e9t\u00e9"));
	EXPECT_EQ(FString::ConstructFromPtrSize(u8"grün!", 5).Len(), 4);
}

TEST(StringTest, AppendingFromItselfSurvivesReallocation)
{
	FString String(TEXT("0123456789"));
	String.Append(*String, String.Len());
	String.Append(*String + 5, 5);
	EXPECT_TRUE(String.Equals(TEXT("0123456789012345678956789")));
	String = *String + 10;
	EXPECT_EQ(String, TEXT("012345678956789"));
}

TEST(StringTest, OperatorsIgnoreCaseButEqualsDefaultsToCaseSensitive)
{
	const FString Lower(TEXT("sword"));
	const FString Upper(TEXT("SWORD"));
	EXPECT_TRUE(Lower == Upper);
	EXPECT_FALSE(Lower != Upper);
	EXPECT_TRUE(Lower == TEXT("Sword"));
	EXPECT_TRUE(TEXT("SwOrD") == Lower);
	EXPECT_FALSE(Lower.Equals(Upper));
	EXPECT_TRUE(Lower.Equals(Upper, ESearchCase::IgnoreCase));
	EXPECT_FALSE(Lower < Upper);
	EXPECT_FALSE(Upper < Lower);
	EXPECT_TRUE(FString(TEXT("apple")) < FString(TEXT("Banana")));
	EXPECT_LT(Upper.Compare(Lower), 0);
	EXPECT_EQ(Upper.Compare(Lower, ESearchCase::IgnoreCase), 0);
	EXPECT_EQ(GetTypeHash(Lower), GetTypeHash(Upper));
	EXPECT_NE(GetTypeHash(Lower), GetTypeHash(FString(TEXT("swords"))));
}

TEST(StringTest, SubstringsClampTheirCountsToTheString)
{
	const FString String(TEXT("Hello World"));
	EXPECT_EQ(String.Left(5), TEXT("Hello"));
	EXPECT_EQ(String.Left(50), String);
	EXPECT_EQ(String.Left(-1), TEXT(""));
	EXPECT_EQ(String.LeftChop(6), TEXT("Hello"));
	EXPECT_EQ(String.Right(5), TEXT("World"));
	EXPECT_EQ(String.RightChop(6), TEXT("World"));
	EXPECT_EQ(String.Mid(6), TEXT("World"));
	EXPECT_EQ(String.Mid(6, 3), TEXT("Wor"));
	EXPECT_EQ(String.Mid(-2, 4), TEXT("He"));
	EXPECT_EQ(String.Mid(20, 4), TEXT(""));

	FString Inline(String);
	Inline.MidInline(3, 5);
	EXPECT_EQ(Inline, TEXT("lo Wo"));
	Inline.RightChopInline(1);
	Inline.LeftChopInline(1);
	EXPECT_EQ(Inline, TEXT("o W"));
}

TEST(StringTest, FindSearchesEitherDirectionFromAStartPosition)
{
	const FString String(TEXT("abcABCabc"));
	EXPECT_EQ(String.Find(TEXT("ABC")), 0);
	EXPECT_EQ(String.Find(TEXT("ABC"), ESearchCase::CaseSensitive), 3);
	EXPECT_EQ(String.Find(TEXT("abc"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 6);
	EXPECT_EQ(String.Find(TEXT("abc"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 1), 3);
	EXPECT_EQ(String.Find(TEXT("abc"), ESearchCase::CaseSensitive, ESearchDir::FromEnd, 6), 0);
	EXPECT_EQ(String.Find(TEXT("zzz")), INDEX_NONE);
	EXPECT_TRUE(String.Contains(TEXT("CAB")));
	EXPECT_FALSE(String.Contains(TEXT("CAB"), ESearchCase::CaseSensitive));
}

TEST(StringTest, StartsAndEndsWithIgnoreCaseByDefaultAndNeverMatchEmpty)
{
	const FString String(TEXT("Quorvel.Stash"));
	EXPECT_TRUE(String.StartsWith(TEXT("quorvel")));
	EXPECT_FALSE(String.StartsWith(TEXT("quorvel"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(String.EndsWith(TEXT(".STASH")));
	EXPECT_FALSE(String.StartsWith(TEXT("")));
	EXPECT_FALSE(String.EndsWith(FString()));
	EXPECT_FALSE(FString(TEXT("ab")).StartsWith(TEXT("abc")));

	FString Trimmed(String);
	EXPECT_TRUE(Trimmed.RemoveFromStart(TEXT("QUORVEL.")));
	EXPECT_FALSE(Trimmed.RemoveFromEnd(TEXT("x")));
	EXPECT_EQ(Trimmed, TEXT("Stash"));
}

TEST(StringTest, ReplaceCountsNonOverlappingMatchesLeftToRight)
{
	FString String(TEXT("aaaa-AAAA"));
	EXPECT_EQ(String.ReplaceInline(TEXT("aa"), TEXT("b")), 4);
	EXPECT_EQ(String, TEXT("bb-bb"));

	FString CaseSensitive(TEXT("aaaa-AAAA"));
	EXPECT_EQ(CaseSensitive.ReplaceInline(TEXT("aa"), TEXT("xyz"), ESearchCase::CaseSensitive), 2);
	EXPECT_TRUE(CaseSensitive.Equals(TEXT("xyzxyz-AAAA")));
	EXPECT_EQ(CaseSensitive.ReplaceInline(TEXT(""), TEXT("q")), 0);
	EXPECT_TRUE(FString(TEXT("a.b.c")).Replace(TEXT("."), TEXT("")).Equals(TEXT("abc")));
}

TEST(StringTest, TrimmingCaseMappingAndInsertion)
{
	EXPECT_TRUE(FString(TEXT(" \t x y \r\n")).TrimStartAndEnd().Equals(TEXT("x y")));
	EXPECT_TRUE(FString(TEXT("   ")).TrimStartAndEnd().IsEmpty());
	EXPECT_TRUE(FString(TEXT("MiXeD \u00c9")).ToLower().Equals(TEXT("mixed \u00e9")));
	EXPECT_TRUE(FString(TEXT("MiXeD \u00e9")).ToUpper().Equals(TEXT("MIXED \u00c9")));

	FString String(TEXT("ac"));
	String.InsertAt(1, TEXT('b'));
	String.InsertAt(3, FString(TEXT("de")));
	String.InsertAt(0, FString(TEXT(">")));
	EXPECT_TRUE(String.Equals(TEXT(">abcde")));
	String.RemoveAt(0, 2);
	EXPECT_TRUE(String.Equals(TEXT("bcde")));
	String.RemoveAt(0, 4);
	EXPECT_EQ(String.GetCharArray().Num(), 0);
}

TEST(StringTest, ParseIntoArraySplitsOnTheWholeDelimiterAndCanKeepEmptyParts)
{
	TArray<FString> Parts;
	EXPECT_EQ(FString(TEXT("a,,b,")).ParseIntoArray(Parts, TEXT(",")), 2);
	EXPECT_TRUE(Parts[0].Equals(TEXT("a")));
	EXPECT_TRUE(Parts[1].Equals(TEXT("b")));
	EXPECT_EQ(FString(TEXT("a,,b,")).ParseIntoArray(Parts, TEXT(","), false), 4);
	EXPECT_TRUE(Parts[1].IsEmpty());
	EXPECT_TRUE(Parts[3].IsEmpty());
	EXPECT_EQ(FString(TEXT("x::y:z")).ParseIntoArray(Parts, TEXT("::")), 2);
	EXPECT_TRUE(Parts[1].Equals(TEXT("y:z")));
	EXPECT_EQ(FString(TEXT("l1\r\nl2\n\nl3")).ParseIntoArrayLines(Parts), 3);

	FString Left;
	FString Right;
	ASSERT_TRUE(FString(TEXT("key=value=more")).Split(TEXT("="), &Left, &Right));
	EXPECT_TRUE(Left.Equals(TEXT("key")));
	EXPECT_TRUE(Right.Equals(TEXT("value=more")));
	ASSERT_TRUE(FString(TEXT("key=value=more")).Split(TEXT("="), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_TRUE(Left.Equals(TEXT("key=value")));
	EXPECT_FALSE(FString(TEXT("novalue")).Split(TEXT("="), &Left, &Right));
	EXPECT_TRUE(FString::Join(Parts, TEXT("+")).Equals(TEXT("l1+l2+l3")));
}

TEST(StringTest, PrintfMatchesTheCLibraryForIntegers)
{
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%d|%i|%u"), -42, 0, 42u)), CPrintf("%d|%i|%u", -42, 0, 42u));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%d"), INT32_MIN)), CPrintf("%d", INT32_MIN));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%lld|%llu"), INT64_MIN, UINT64_MAX)), CPrintf("%lld|%llu", (long long)INT64_MIN, (unsigned long long)UINT64_MAX));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("[%5d][%-5d][%05d][%+d][% d]"), -7, 7, -7, 7, 7)), CPrintf("[%5d][%-5d][%05d][%+d][% d]", -7, 7, -7, 7, 7));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%x|%X|%#x|%08X|%o"), 255, 255, 255, 0xBEEFu, 8)), CPrintf("%x|%X|%#x|%08X|%o", 255, 255, 255, 0xBEEFu, 8));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%u"), -1)), CPrintf("%u", -1));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("[%*d][%-*d][%.3d]"), 6, 42, -6, 42, 5)), CPrintf("[%*d][%-*d][%.3d]", 6, 42, -6, 42, 5));
}

TEST(StringTest, PrintfMatchesTheCLibraryForFloatingPoint)
{
	const double Values[] = { 0.1, -0.0, 1.0 / 3.0, 1e300, -123456.789, 5e-324, 0.5, 2.5 };
	for (const double Value : Values)
	{
		EXPECT_EQ(Utf8(FString::Printf(TEXT("%.17g"), Value)), CPrintf("%.17g", Value)) << Value;
		EXPECT_EQ(Utf8(FString::Printf(TEXT("%f|%e|%g|%.0f|%10.3f|%-10.2e|"), Value, Value, Value, Value, Value, Value)),
			CPrintf("%f|%e|%g|%.0f|%10.3f|%-10.2e|", Value, Value, Value, Value, Value, Value)) << Value;
	}
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%.*f"), 2, 3.14159f)), CPrintf("%.*f", 2, double(3.14159f)));
}

TEST(StringTest, PrintfFormatsStringsCharactersAndPercent)
{
	const FString Name(TEXT("Stash"));
	EXPECT_TRUE(FString::Printf(TEXT("[%s][%8s][%-8s][%.2s]"), *Name, *Name, *Name, *Name).Equals(TEXT("[Stash][   Stash][Stash   ][St]")));
	EXPECT_TRUE(FString::Printf(TEXT("%c%c 100%%"), TEXT('o'), 'k').Equals(TEXT("ok 100%")));
	EXPECT_TRUE(FString::Printf(TEXT("%hs"), "ansi").Equals(TEXT("ansi")));
	const TCHAR* Null = nullptr;
	EXPECT_TRUE(FString::Printf(TEXT("%s"), Null).Equals(TEXT("(null)")));
	EXPECT_TRUE(FString::Printf(TEXT("\u00fcber %s"), TEXT("\u00e9")).Equals(TEXT("\u00fcber \u00e9")));
	EXPECT_TRUE(FString::Printf(TEXT("no args")).Equals(TEXT("no args")));
	EXPECT_TRUE(FString::Printf(TEXT("%q trailing %")).Equals(TEXT("%q trailing %")));
}

TEST(StringTest, NumberConversionsFollowTheEngine)
{
	EXPECT_TRUE(FString::FromInt(-12).Equals(TEXT("-12")));
	EXPECT_TRUE(FString::SanitizeFloat(1.0).Equals(TEXT("1.0")));
	EXPECT_TRUE(FString::SanitizeFloat(1.0, 0).Equals(TEXT("1")));
	EXPECT_TRUE(FString::SanitizeFloat(2.5, 3).Equals(TEXT("2.500")));
	EXPECT_TRUE(FString::SanitizeFloat(-0.0).Equals(TEXT("0.0")));
	EXPECT_TRUE(FString::SanitizeFloat(0.1234567).Equals(TEXT("0.123457")));

	EXPECT_TRUE(FString(TEXT("-12.5")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.2.3")).IsNumeric());
	EXPECT_FALSE(FString().IsNumeric());
	EXPECT_FALSE(FString(TEXT("12a")).IsNumeric());

	EXPECT_TRUE(FString(TEXT("On")).ToBool());
	EXPECT_TRUE(FString(TEXT("TRUE")).ToBool());
	EXPECT_TRUE(FString(TEXT("7")).ToBool());
	EXPECT_FALSE(FString(TEXT("off")).ToBool());
	EXPECT_FALSE(FString(TEXT("banana")).ToBool());

	EXPECT_TRUE(LexToString(42).Equals(TEXT("42")));
	EXPECT_TRUE(LexToString(1.5).Equals(TEXT("1.500000")));
	EXPECT_TRUE(LexToString(true).Equals(TEXT("true")));
	int32 IntValue = 0;
	LexFromString(IntValue, TEXT("  -17xyz"));
	EXPECT_EQ(IntValue, -17);
	double DoubleValue = 0.0;
	LexFromString(DoubleValue, TEXT("2.25"));
	EXPECT_EQ(DoubleValue, 2.25);
	EXPECT_FALSE(LexTryParseString(IntValue, TEXT("12abc")));
	EXPECT_FALSE(LexTryParseString(IntValue, TEXT("3000000000")));
	EXPECT_TRUE(LexTryParseString(IntValue, TEXT(" 99 ")));
	EXPECT_EQ(IntValue, 99);
}

TEST(CStringTest, ParsesNumbersLikeTheCLibrary)
{
	EXPECT_EQ(FCString::Atoi(TEXT("  42abc")), 42);
	EXPECT_EQ(FCString::Atoi64(TEXT("-9000000000")), -9000000000LL);
	EXPECT_DOUBLE_EQ(FCString::Atod(TEXT("1.5e3")), 1500.0);
	EXPECT_FLOAT_EQ(FCString::Atof(TEXT("0.25")), 0.25f);
	TCHAR* End = nullptr;
	const TCHAR* Hex = TEXT("ff rest");
	EXPECT_EQ(FCString::Strtoi(Hex, &End, 16), 255);
	EXPECT_EQ(End, Hex + 2);
	EXPECT_EQ(FCString::Atoi(TEXT("\u0661")), 0);
}

TEST(CStringTest, ComparesAndSearchesWithAsciiCaseFolding)
{
	EXPECT_EQ(FCString::Stricmp(TEXT("ABC"), TEXT("abc")), 0);
	EXPECT_LT(FCString::Stricmp(TEXT("abc"), TEXT("ABD")), 0);
	EXPECT_GT(FCString::Strcmp(TEXT("b"), TEXT("a")), 0);
	EXPECT_EQ(FCString::Strnicmp(TEXT("HELLO there"), TEXT("hello world"), 6), 0);
	// Only ASCII folds: the engine never compares other scripts without regard to case.
	EXPECT_NE(FCString::Stricmp(TEXT("\u00c9"), TEXT("\u00e9")), 0);
	const TCHAR* Text = TEXT("needle in haystack");
	EXPECT_EQ(FCString::Strstr(Text, TEXT("hay")), Text + 10);
	EXPECT_EQ(FCString::Strstr(Text, TEXT("HAY")), nullptr);
	EXPECT_EQ(FCString::Stristr(Text, TEXT("HAY")), Text + 10);
	EXPECT_TRUE(FCString::IsNumeric(TEXT("+3.5")));
	EXPECT_FALSE(FCString::IsNumeric(TEXT("3e5")));
}

TEST(StringViewTest, ViewsCompareWithoutCaseAndSliceWithoutCopying)
{
	const FString Owner(TEXT("  Inventory Slot  "));
	const FStringView View = FStringView(Owner).TrimStartAndEnd();
	EXPECT_EQ(View.Len(), 14);
	EXPECT_EQ(View.GetData(), *Owner + 2);
	EXPECT_TRUE(View == TEXT("INVENTORY SLOT"));
	EXPECT_FALSE(View.Equals(TEXT("INVENTORY SLOT")));
	EXPECT_TRUE(View.Left(9).Equals(TEXT("Inventory")));
	EXPECT_TRUE(View.RightChop(10).Equals(TEXT("Slot")));
	EXPECT_EQ(View.Find(TEXT("slot")), 10);
	EXPECT_TRUE(View.StartsWith(TEXT("inv")));
	EXPECT_TRUE(TEXTVIEW("abc") < TEXTVIEW("ABD"));
	EXPECT_EQ(View[0], TEXT('I'));
}

TEST(StringConvTest, Utf8RoundTripsEveryPlane)
{
	const FString Original(TEXT("A\u00e9\u20ac\U0001F600z"));
	const FTCHARToUTF8 Encoded(*Original);
	EXPECT_EQ(Encoded.Length(), 1 + 2 + 3 + 4 + 1);
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Original)), std::string("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z"));
	const FUTF8ToTCHAR Decoded(reinterpret_cast<const ANSICHAR*>(Encoded.Get()), Encoded.Length());
	EXPECT_TRUE(FString(Decoded.Length(), Decoded.Get()).Equals(Original));
	EXPECT_TRUE(FString(UTF8_TO_TCHAR("\xC3\xA9t\xC3\xA9")).Equals(TEXT("\u00e9t\u00e9")));
}

TEST(StringConvTest, InvalidUtf8BecomesOneReplacementCharacterPerBadSequence)
{
	struct FCase
	{
		const char* Bytes;
		const TCHAR* Expected;
	};
	const FCase Cases[] = {
		{ "a\xFF" "b", TEXT("a\uFFFDb") },                      // never valid
		{ "a\xC0\xAF" "b", TEXT("a\uFFFD\uFFFDb") },            // overlong
		{ "a\xE2\x82" "b", TEXT("a\uFFFDb") },                  // truncated three-byte sequence
		{ "a\xED\xA0\x80" "b", TEXT("a\uFFFD\uFFFD\uFFFDb") },  // encoded surrogate
		{ "a\xF4\x90\x80\x80", TEXT("a\uFFFD\uFFFD\uFFFD\uFFFD") }, // above U+10FFFF
		{ "\xE2\x82", TEXT("\uFFFD") },                         // truncated at the end of input
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_TRUE(FString(UTF8_TO_TCHAR(Case.Bytes)).Equals(Case.Expected)) << Case.Bytes;
	}
}

TEST(StringConvTest, UnpairedSurrogatesEncodeAsReplacementCharacters)
{
	const TCHAR Lone[] = { TCHAR(0xD83D), TEXT('x'), TCHAR(0xDE00), 0 };
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(Lone)), std::string("\xEF\xBF\xBDx\xEF\xBF\xBD"));
	EXPECT_EQ(std::string(TCHAR_TO_ANSI(TEXT("caf\u00e9"))), std::string("caf?"));
	const auto Same = StringCast<TCHAR>(TEXT("same"));
	EXPECT_EQ(Same.Length(), 4);
}

TEST(StringTest, PrintfNarrowsIntegersThroughTheLengthModifierAsCDoes)
{
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%hhd|%hd|%hhu|%hu"), 300, 70000, 300, 70000)), CPrintf("%hhd|%hd|%hhu|%hu", 300, 70000, 300, 70000));
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%ld|%zu|%lx"), -5L, size_t(9), 0xABCDEF0123L)), CPrintf("%ld|%zu|%lx", -5L, size_t(9), 0xABCDEF0123L));
	int32 Local = 0;
	EXPECT_EQ(Utf8(FString::Printf(TEXT("%p"), &Local)), CPrintf("%p", static_cast<void*>(&Local)));
	enum class EColour : uint8
	{
		Red = 2,
	};
	EXPECT_TRUE(FString::Printf(TEXT("%d/%d"), EColour::Red, true).Equals(TEXT("2/1")));
}

TEST(StringTest, PrintfPadsCharactersAndAppendfExtendsInPlace)
{
	EXPECT_TRUE(FString::Printf(TEXT("[%3c][%-3c]"), TEXT('x'), TEXT('y')).Equals(TEXT("[  x][y  ]")));
	FString Line(TEXT("slots:"));
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Line.Appendf(TEXT(" %d"), Index);
	}
	EXPECT_TRUE(Line.Equals(TEXT("slots: 0 1 2")));
	const FString Long = FString::Printf(TEXT("%300d|"), 1);
	EXPECT_EQ(Long.Len(), 301);
	EXPECT_EQ(Long[299], TEXT('1'));
}

TEST(StringTest, MovedFromStringsAreEmptyAndCopiesAreIndependent)
{
	FString Original(TEXT("payload"));
	FString Copy(Original);
	Copy[0] = TEXT('P');
	EXPECT_TRUE(Original.Equals(TEXT("payload")));
	FString Moved(MoveTemp(Original));
	EXPECT_TRUE(Original.IsEmpty());
	EXPECT_EQ(Original.GetCharArray().Num(), 0);
	EXPECT_TRUE(Moved.Equals(TEXT("payload")));
	Moved = *Moved + 3;
	EXPECT_TRUE(Moved.Equals(TEXT("load")));

	TArray<FString> Many;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Many.Add(FString::FromInt(Index));
	}
	EXPECT_TRUE(Many[57].Equals(TEXT("57")));
	EXPECT_EQ(*Many[99].GetCharArray().GetData(), TEXT('9'));
}

TEST(StringTest, ReserveKeepsContentsAndEmptyWithSlackKeepsCapacity)
{
	FString String(TEXT("abc"));
	String.Reserve(100);
	EXPECT_GE(String.GetCharArray().Max(), 101);
	EXPECT_TRUE(String.Equals(TEXT("abc")));
	String.Empty(50);
	EXPECT_TRUE(String.IsEmpty());
	EXPECT_GE(String.GetCharArray().Max(), 51);
	String.Reset();
	EXPECT_TRUE(String.IsEmpty());
	EXPECT_TRUE(FString::ChrN(3, TEXT('-')).Equals(TEXT("---")));
	EXPECT_TRUE(FString::Chr(TEXT('z')).Equals(TEXT("z")));
	EXPECT_TRUE((FString(TEXT("Content")) / TEXT("Icons") / TEXT("/Sword.png")).Equals(TEXT("Content/Icons/Sword.png")));
}

TEST(CharTest, ClassifiesAsciiAndTheRestOfUnicode)
{
	EXPECT_TRUE(FChar::IsWhitespace(TEXT(' ')));
	EXPECT_TRUE(FChar::IsWhitespace(TCHAR(0x00A0)));
	EXPECT_TRUE(FChar::IsWhitespace(TCHAR(0x3000)));
	EXPECT_FALSE(FChar::IsWhitespace(TEXT('x')));
	EXPECT_TRUE(FChar::IsDigit(TEXT('7')));
	EXPECT_FALSE(FChar::IsDigit(TCHAR(0x0661)));
	EXPECT_TRUE(FChar::IsAlpha(TCHAR(0x00E9)));
	EXPECT_TRUE(FChar::IsAlnum(TEXT('Q')));
	EXPECT_FALSE(FChar::IsAlnum(TEXT('-')));
	EXPECT_EQ(FChar::ToUpper(TCHAR(0x00E9)), TCHAR(0x00C9));
	EXPECT_EQ(FChar::ToLower(TCHAR(0x0416)), TCHAR(0x0436));
	EXPECT_EQ(FChar::ToLower(TEXT('Q')), TEXT('q'));
	EXPECT_EQ(FCharAnsi::ToUpper('\xE9'), '\xE9');
}
