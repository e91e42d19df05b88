#include "TestPropertyTypes.h"

#include "UObject/Package.h"
#include "Containers/StringConv.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	FProperty* Prop(const UStruct* Owner, const TCHAR* Name)
	{
		FProperty* Property = Owner->FindPropertyByName(FName(Name));
		check(Property);
		return Property;
	}

	FString Export(const FProperty* Property, const void* Container, int32 PortFlags = PPF_None)
	{
		FString Text;
		Property->ExportTextItem_InContainer(Text, Container, nullptr, nullptr, PortFlags);
		return Text;
	}

	// Imports Text and expects all of it to be read.
	bool ImportAll(const FProperty* Property, const FString& Text, void* Container, int32 PortFlags = PPF_None)
	{
		const TCHAR* End = Property->ImportText_InContainer(*Text, Container, nullptr, PortFlags);
		return End != nullptr && *End == 0;
	}
}

TEST(PropertyText, ScalarsExportAsTheEngineWritesThem)
{
	UTestValues* Values = NewObject<UTestValues>();
	Values->bOn = true;
	Values->Placement.Note = TEXT("say \"hi\"");
	UClass* Class = UTestValues::StaticClass();
	EXPECT_EQ(Export(Prop(Class, TEXT("Tiny")), Values), FString(TEXT("-8")));
	EXPECT_EQ(Export(Prop(Class, TEXT("BigUnsigned")), Values), FString(TEXT("64")));
	EXPECT_EQ(Export(Prop(Class, TEXT("Precise")), Values), FString(TEXT("0.500000")));
	EXPECT_EQ(Export(Prop(Class, TEXT("bOn")), Values), FString(TEXT("True")));
	EXPECT_EQ(Export(Prop(Class, TEXT("Signed")), Values), FString(TEXT("Above")));
	EXPECT_EQ(Export(Prop(Class, TEXT("Strong")), Values), FString(TEXT("None")));
	const FProperty* Note = Prop(FTestPlacement::StaticStruct(), TEXT("Note"));
	EXPECT_EQ(Export(Note, &Values->Placement), FString(TEXT("say \"hi\"")));
	EXPECT_EQ(Export(Note, &Values->Placement, PPF_Delimited), FString(TEXT("\"say \\\"hi\\\"\"")));
}

TEST(PropertyText, EveryValueKindSurvivesAnExportAndImportRoundTrip)
{
	UTestBase* Target = NewObject<UTestBase>(GetTransientPackage(), FName(TEXT("RoundTripTarget")));
	UTestValues* A = NewObject<UTestValues>();
	UTestValues* B = NewObject<UTestValues>();
	A->Tiny = -100;
	A->Small = -30000;
	A->SmallUnsigned = 65535;
	A->Unsigned = 4000000000u;
	A->Big = -5000000000ll;
	A->BigUnsigned = 0xFFFFFFFFFFFFFFFFull;
	A->Byte = 255;
	A->Precise = -1.25;
	A->bOn = true;
	A->Caption = FText::FromString(TEXT("Two words, one comma"));
	A->Signed = ETestSigned::Below;
	A->Placement.Cell = FTestCell{3, -4};
	A->Placement.Path = {FTestCell{1, 2}, FTestCell{5, 6}};
	A->Placement.Tag = FName(TEXT("Tag"));
	A->Placement.Note = TEXT("a (parenthesised), \"quoted\" note");
	A->Placement.Layout = ETestLayout::Slots;
	A->Path = FSoftObjectPath(TEXT("/Game/Items/Table.Table"));
	A->Kind = UTestWidget::StaticClass();
	A->Strong = Target;
	A->Weak = Target;
	A->Soft = Target;
	A->Numbers = {-1, 0, 1};
	A->Switches = {false, true};
	A->Doubles = {0.5, -2.0};
	A->Strings = {TEXT("x, y"), TEXT(""), TEXT("(z)")};
	A->Names = {FName(TEXT("One")), FName(TEXT("Two"))};
	A->Texts = {FText::FromString(TEXT("t, u"))};
	A->Layouts = {ETestLayout::Slots, ETestLayout::Grid};
	A->RawRefs = {Target, nullptr};
	A->Weaks = {Target};
	A->Softs = {TSoftObjectPtr<UTestBase>(Target)};

	for (TFieldIterator<FProperty> It(UTestValues::StaticClass(), EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (It->ArrayDim != 1)
		{
			continue;
		}
		SCOPED_TRACE(TCHAR_TO_UTF8(*FString(It->GetName())));
		const FString Text = Export(*It, A);
		EXPECT_TRUE(ImportAll(*It, Text, B)) << "imports " << TCHAR_TO_UTF8(*Text);
		EXPECT_TRUE(It->Identical_InContainer(A, B)) << "after " << TCHAR_TO_UTF8(*Text);
	}
}

TEST(PropertyText, AStructWithAFixedArrayMemberRoundTripsEveryElement)
{
	FTestPlacement Source;
	Source.Corners[0] = FTestCell{1, 2};
	Source.Corners[1] = FTestCell{3, 4};
	UTestValues* Values = NewObject<UTestValues>();
	Values->Placement = Source;
	const FProperty* Placement = Prop(UTestValues::StaticClass(), TEXT("Placement"));
	const FString Text = Export(Placement, Values);

	UTestValues* Imported = NewObject<UTestValues>();
	ASSERT_TRUE(ImportAll(Placement, Text, Imported)) << TCHAR_TO_UTF8(*Text);

	EXPECT_EQ(Imported->Placement.Corners[0].X, 1);
	EXPECT_EQ(Imported->Placement.Corners[0].Y, 2);
	EXPECT_EQ(Imported->Placement.Corners[1].X, 3);
	EXPECT_EQ(Imported->Placement.Corners[1].Y, 4);
}

TEST(PropertyText, ANameWithADelimiterInsideAStructRoundTrips)
{
	UTestValues* A = NewObject<UTestValues>();
	A->Placement.Tag = FName(TEXT("Left,Right"));
	A->Names = {FName(TEXT("a)b")), FName(TEXT("c"))};
	UTestValues* B = NewObject<UTestValues>();
	for (const TCHAR* Name : {TEXT("Placement"), TEXT("Names")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*FString(Name)));
		const FProperty* Property = Prop(UTestValues::StaticClass(), Name);
		const FString Text = Export(Property, A);
		EXPECT_TRUE(ImportAll(Property, Text, B)) << TCHAR_TO_UTF8(*Text);
		EXPECT_TRUE(Property->Identical_InContainer(A, B)) << TCHAR_TO_UTF8(*Text);
	}
}

TEST(PropertyText, StructTextMayNameMembersInAnyOrderAndLeaveSomeOut)
{
	UTestValues* Values = NewObject<UTestValues>();
	Values->Placement.Note = TEXT("kept");
	const FProperty* Placement = Prop(UTestValues::StaticClass(), TEXT("Placement"));

	ASSERT_TRUE(ImportAll(Placement, TEXT("( Layout=Slots , Cell=(Y=2,X=1) )"), Values));

	EXPECT_EQ(Values->Placement.Cell.X, 1);
	EXPECT_EQ(Values->Placement.Cell.Y, 2);
	EXPECT_EQ(Values->Placement.Layout, ETestLayout::Slots);
	EXPECT_EQ(Values->Placement.Note, FString(TEXT("kept")));
}

TEST(PropertyText, MalformedTextIsRefused)
{
	UTestValues* Values = NewObject<UTestValues>();
	UClass* Class = UTestValues::StaticClass();
	const FProperty* Placement = Prop(Class, TEXT("Placement"));
	EXPECT_EQ(Placement->ImportText_InContainer(TEXT("(Cell=(X=1)"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Placement->ImportText_InContainer(TEXT("(NoSuchMember=1)"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Placement->ImportText_InContainer(TEXT("Cell=(X=1)"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Prop(Class, TEXT("bOn"))->ImportText_InContainer(TEXT("maybe"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Prop(Class, TEXT("Signed"))->ImportText_InContainer(TEXT("Sideways"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Prop(Class, TEXT("Numbers"))->ImportText_InContainer(TEXT("1,2"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Prop(Class, TEXT("Tiny"))->ImportText_InContainer(TEXT("many"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Values->Signed, ETestSigned::Above);
	EXPECT_EQ(Values->Tiny, -8);
}

TEST(PropertyText, ObjectReferencesImportByPathOnlyWhenTheClassFits)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Tests/TextRefs"));
	UTestBase* Base = NewObject<UTestBase>(Package, FName(TEXT("Base")));
	UTestWidget* Widget = NewObject<UTestWidget>(Package, FName(TEXT("Widget")));
	UTestValues* Values = NewObject<UTestValues>();
	const FProperty* Strong = Prop(UTestValues::StaticClass(), TEXT("Strong"));
	const FProperty* WidgetChild = Prop(UTestWidget::StaticClass(), TEXT("Child"));

	EXPECT_TRUE(ImportAll(Strong, TEXT("TestBase'/Game/Tests/TextRefs.Base'"), Values));
	EXPECT_EQ(Values->Strong, Base);
	EXPECT_TRUE(ImportAll(Strong, TEXT("/Game/Tests/TextRefs.Widget"), Values));
	EXPECT_EQ(Values->Strong, Widget);
	EXPECT_EQ(Export(Strong, Values), FString(TEXT("TestWidget'/Game/Tests/TextRefs.Widget'")));
	EXPECT_TRUE(ImportAll(Strong, TEXT("None"), Values));
	EXPECT_EQ(Values->Strong, nullptr);
	EXPECT_EQ(Strong->ImportText_InContainer(TEXT("/Game/Tests/TextRefs.Missing"), Values, nullptr, PPF_None), nullptr);

	// The package is not a UTestBase, so it cannot be imported into a UTestBase reference.
	UTestWidget* Holder = NewObject<UTestWidget>();
	EXPECT_EQ(WidgetChild->ImportText_InContainer(TEXT("/Game/Tests/TextRefs"), Holder, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Holder->Child, nullptr);
}

TEST(PropertyText, SoftReferencesExportTheirPathWhetherOrNotTheObjectIsLoaded)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FProperty* Soft = Prop(UTestValues::StaticClass(), TEXT("Soft"));
	EXPECT_TRUE(ImportAll(Soft, TEXT("/Game/NotLoaded/Thing.Thing"), Values));
	EXPECT_EQ(Values->Soft.ToSoftObjectPath().ToString(), FString(TEXT("/Game/NotLoaded/Thing.Thing")));
	EXPECT_EQ(Values->Soft.Get(), nullptr);
	EXPECT_EQ(Export(Soft, Values), FString(TEXT("/Game/NotLoaded/Thing.Thing")));
	EXPECT_TRUE(ImportAll(Soft, TEXT("None"), Values));
	EXPECT_TRUE(Values->Soft.IsNull());
}

TEST(PropertyText, NamesInsideStructsReadBackQuotedOrBare)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FProperty* Placement = Prop(UTestValues::StaticClass(), TEXT("Placement"));
	Values->Placement.Tag = FName(TEXT("Quoted"));
	EXPECT_EQ(Export(Placement, Values).Contains(TEXT("Tag=\"Quoted\"")), true);

	ASSERT_TRUE(ImportAll(Placement, TEXT("(Tag=Bare,Note=Plain words)"), Values));
	EXPECT_EQ(Values->Placement.Tag, FName(TEXT("Bare")));
	EXPECT_EQ(Values->Placement.Note, FString(TEXT("Plain words")));
	ASSERT_TRUE(ImportAll(Placement, TEXT("(Tag=\"With, comma\")"), Values));
	EXPECT_EQ(Values->Placement.Tag, FName(TEXT("With, comma")));
}

TEST(PropertyText, FixedArrayElementsMayBeNamedByIndexInEitherBracket)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FProperty* Placement = Prop(UTestValues::StaticClass(), TEXT("Placement"));

	ASSERT_TRUE(ImportAll(Placement, TEXT("(Corners[1]=(X=5),Corners(0)=(Y=6))"), Values));

	EXPECT_EQ(Values->Placement.Corners[1].X, 5);
	EXPECT_EQ(Values->Placement.Corners[0].Y, 6);
	EXPECT_EQ(Placement->ImportText_InContainer(TEXT("(Corners[2]=(X=1))"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Placement->ImportText_InContainer(TEXT("(Corners[]=(X=1))"), Values, nullptr, PPF_None), nullptr);
	EXPECT_EQ(Placement->ImportText_InContainer(TEXT("(Cell[1]=(X=1))"), Values, nullptr, PPF_None), nullptr);
}

TEST(PropertyText, ImportingAnArrayReplacesWhatItHeld)
{
	UTestValues* Values = NewObject<UTestValues>();
	Values->Numbers = {9, 9, 9, 9};
	Values->Placement.Path = {FTestCell{9, 9}};
	const FProperty* Numbers = Prop(UTestValues::StaticClass(), TEXT("Numbers"));
	const FProperty* Placement = Prop(UTestValues::StaticClass(), TEXT("Placement"));

	ASSERT_TRUE(ImportAll(Numbers, TEXT("(1, 2)"), Values));
	ASSERT_TRUE(ImportAll(Placement, TEXT("(Path=((X=1,Y=2),(X=3,Y=4)))"), Values));

	EXPECT_EQ(Values->Numbers, TArray<int32>({1, 2}));
	ASSERT_EQ(Values->Placement.Path.Num(), 2);
	EXPECT_EQ(Values->Placement.Path[1].Y, 4);
	ASSERT_TRUE(ImportAll(Numbers, TEXT("()"), Values));
	EXPECT_EQ(Values->Numbers.Num(), 0);
}

TEST(PropertyText, EnumsReadTheirShortOrQualifiedNameOrANumber)
{
	UTestValues* Values = NewObject<UTestValues>();
	const FProperty* Layouts = Prop(UTestValues::StaticClass(), TEXT("Layouts"));
	const FProperty* Signed = Prop(UTestValues::StaticClass(), TEXT("Signed"));

	ASSERT_TRUE(ImportAll(Layouts, TEXT("(Slots,ETestLayout::Grid,1)"), Values));
	ASSERT_TRUE(ImportAll(Signed, TEXT("-5"), Values));

	ASSERT_EQ(Values->Layouts.Num(), 3);
	EXPECT_EQ(Values->Layouts[0], ETestLayout::Slots);
	EXPECT_EQ(Values->Layouts[1], ETestLayout::Grid);
	EXPECT_EQ(Values->Layouts[2], ETestLayout::Slots);
	EXPECT_EQ(Values->Signed, ETestSigned::Below);
	EXPECT_EQ(Export(Layouts, Values), FString(TEXT("(Slots,Grid,Slots)")));
}
