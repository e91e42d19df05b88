#include "TestPropertyTypes.h"
#include "TestDelegates.h"

#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	struct FShiftParms
	{
		FTestPlacement From;
		int32 By = 0;
		FTestPlacement ReturnValue;
	};

	struct FPickParms
	{
		TArray<UTestBase*> Candidates;
		int32 Index = 0;
		UTestBase* ReturnValue = nullptr;
	};

	struct FFillParms
	{
		TArray<FString> Out;
		int32 Count = 0;
		bool bUpper = false;
	};

	struct FMixedParms
	{
		uint8 Small;
		FName Tag;
		double Scale;
		bool bOn;
		ETestLayout Layout;
		int64 Big;
	};

	// Offset of each parameter, in declared order.
	TArray<int32> ParameterOffsets(const UFunction* Function)
	{
		TArray<int32> Offsets;
		for (TFieldIterator<FProperty> It(Function); It && It->HasAnyPropertyFlags(CPF_Parm); ++It)
		{
			Offsets.Add(It->GetOffset_ForUFunction());
		}
		return Offsets;
	}
}

TEST(FunctionCalls, ParametersAreLaidOutAsTheMatchingCppStruct)
{
	UClass* Class = UTestCalls::StaticClass();
	const UFunction* Mixed = Class->FindFunctionByName(FName(TEXT("Mixed")));
	ASSERT_NE(Mixed, nullptr);
	EXPECT_EQ(Mixed->NumParms, 6);
	EXPECT_EQ(Mixed->ParmsSize, sizeof(FMixedParms));
	const TArray<int32> Expected = {int32(offsetof(FMixedParms, Small)), int32(offsetof(FMixedParms, Tag)), int32(offsetof(FMixedParms, Scale)),
		int32(offsetof(FMixedParms, bOn)), int32(offsetof(FMixedParms, Layout)), int32(offsetof(FMixedParms, Big))};
	EXPECT_EQ(ParameterOffsets(Mixed), Expected);
	EXPECT_EQ(Mixed->ReturnValueOffset, 0xffff);
	EXPECT_EQ(Mixed->GetReturnProperty(), nullptr);

	const UFunction* Shift = Class->FindFunctionByName(FName(TEXT("Shift")));
	EXPECT_EQ(Shift->ParmsSize, sizeof(FShiftParms));
	EXPECT_EQ(Shift->ReturnValueOffset, offsetof(FShiftParms, ReturnValue));
	EXPECT_EQ(Shift->GetReturnProperty()->GetFName(), FName(TEXT("ReturnValue")));
	EXPECT_EQ(CastField<FStructProperty>(Shift->GetReturnProperty())->Struct, FTestPlacement::StaticStruct());
	EXPECT_EQ(Class->FindFunctionByName(FName(TEXT("Pick")))->ParmsSize, sizeof(FPickParms));
	EXPECT_EQ(Class->FindFunctionByName(FName(TEXT("Fill")))->ParmsSize, sizeof(FFillParms));
}

TEST(FunctionCalls, ReferenceAndConstnessBecomeParameterAndFunctionFlags)
{
	UClass* Class = UTestCalls::StaticClass();
	const UFunction* Shift = Class->FindFunctionByName(FName(TEXT("Shift")));
	EXPECT_TRUE(Shift->HasAllFunctionFlags(FUNC_Native | FUNC_Final | FUNC_Public | FUNC_BlueprintCallable | FUNC_Const | FUNC_HasOutParms));
	EXPECT_TRUE(Shift->FindPropertyByName(FName(TEXT("From")))->HasAllPropertyFlags(CPF_Parm | CPF_ConstParm | CPF_ReferenceParm | CPF_OutParm));
	EXPECT_FALSE(Shift->FindPropertyByName(FName(TEXT("By")))->HasAnyPropertyFlags(CPF_OutParm | CPF_ReferenceParm | CPF_ConstParm | CPF_ReturnParm));

	const UFunction* Fill = Class->FindFunctionByName(FName(TEXT("Fill")));
	const FProperty* Out = Fill->FindPropertyByName(FName(TEXT("Out")));
	EXPECT_TRUE(Out->HasAllPropertyFlags(CPF_Parm | CPF_OutParm));
	EXPECT_FALSE(Out->HasAnyPropertyFlags(CPF_ConstParm | CPF_ReferenceParm));
	EXPECT_TRUE(Fill->HasAnyFunctionFlags(FUNC_HasOutParms));
	EXPECT_FALSE(Fill->HasAnyFunctionFlags(FUNC_Const));

	const UFunction* Mixed = Class->FindFunctionByName(FName(TEXT("Mixed")));
	EXPECT_FALSE(Mixed->HasAnyFunctionFlags(FUNC_HasOutParms | FUNC_HasDefaults | FUNC_Static));
	EXPECT_TRUE(Class->FindFunctionByName(FName(TEXT("Twice")))->HasAllFunctionFlags(FUNC_Static | FUNC_Final | FUNC_Native));

	const UFunction* Score = Class->FindFunctionByName(FName(TEXT("Score")));
	EXPECT_TRUE(Score->HasAllFunctionFlags(FUNC_Native | FUNC_Event | FUNC_BlueprintEvent));
	EXPECT_FALSE(Score->HasAnyFunctionFlags(FUNC_Final));
	EXPECT_EQ(Score->GetOuterUClass(), Class);
	EXPECT_EQ(Class->FindFunctionByName(FName(TEXT("NoSuchFunction"))), nullptr);
	EXPECT_EQ(UTestWidget::StaticClass()->FindFunctionByName(FName(TEXT("Shift"))), nullptr);
}

TEST(FunctionCalls, ProcessEventPassesStructsInAndOutByValue)
{
	UTestCalls* Calls = NewObject<UTestCalls>();
	FShiftParms Parms;
	Parms.From.Cell = FTestCell{1, 2};
	Parms.From.Note = TEXT("carried along with the rest of the placement");
	Parms.By = 10;

	Calls->ProcessEvent(Calls->FindFunctionChecked(FName(TEXT("Shift"))), &Parms);

	EXPECT_EQ(Parms.ReturnValue.Cell.X, 11);
	EXPECT_EQ(Parms.ReturnValue.Cell.Y, 12);
	ASSERT_EQ(Parms.ReturnValue.Path.Num(), 1);
	EXPECT_EQ(Parms.ReturnValue.Path[0].X, 1);
	EXPECT_EQ(Parms.ReturnValue.Note, Parms.From.Note);
	EXPECT_EQ(Parms.From.Cell.X, 1);
}

TEST(FunctionCalls, ProcessEventPassesObjectArraysAndReturnsObjects)
{
	UTestCalls* Calls = NewObject<UTestCalls>();
	UTestBase* A = NewObject<UTestBase>();
	UTestBase* B = NewObject<UTestBase>();
	FPickParms Parms;
	Parms.Candidates = {A, B};
	Parms.Index = 1;
	UFunction* Pick = Calls->FindFunctionChecked(FName(TEXT("Pick")));

	Calls->ProcessEvent(Pick, &Parms);
	EXPECT_EQ(Parms.ReturnValue, B);

	Parms.Index = 5;
	Calls->ProcessEvent(Pick, &Parms);
	EXPECT_EQ(Parms.ReturnValue, nullptr);
}

TEST(FunctionCalls, ProcessEventWritesANonConstArrayReferenceBack)
{
	UTestCalls* Calls = NewObject<UTestCalls>();
	FFillParms Parms;
	Parms.Out = {TEXT("kept")};
	Parms.Count = 2;
	Parms.bUpper = true;

	Calls->ProcessEvent(Calls->FindFunctionChecked(FName(TEXT("Fill"))), &Parms);

	ASSERT_EQ(Parms.Out.Num(), 3);
	EXPECT_EQ(Parms.Out[0], FString(TEXT("kept")));
	EXPECT_EQ(Parms.Out[2], FString(TEXT("X")));
}

TEST(FunctionCalls, ProcessEventReadsEveryScalarKindAtItsOffset)
{
	UTestCalls* Calls = NewObject<UTestCalls>();
	FMixedParms Parms{200, FName(TEXT("Tagged")), 2.5, true, ETestLayout::Slots, -7000000000ll};

	Calls->ProcessEvent(Calls->FindFunctionChecked(FName(TEXT("Mixed"))), &Parms);

	EXPECT_EQ(Calls->LastSmall, 200);
	EXPECT_EQ(Calls->LastTag, FName(TEXT("Tagged")));
	EXPECT_EQ(Calls->LastScale, 2.5);
	EXPECT_TRUE(Calls->bLastOn);
	EXPECT_EQ(Calls->LastLayout, ETestLayout::Slots);
	EXPECT_EQ(Calls->LastBig, -7000000000ll);
}

TEST(FunctionCalls, StaticFunctionsRunThroughTheClassDefaultObject)
{
	struct
	{
		int32 Value;
		int32 ReturnValue;
	} Parms{21, 0};
	UObject* Defaults = UTestCalls::StaticClass()->GetDefaultObject();

	Defaults->ProcessEvent(Defaults->FindFunctionChecked(FName(TEXT("Twice"))), &Parms);

	EXPECT_EQ(Parms.ReturnValue, 42);
}

TEST(FunctionCalls, ANativeEventRunsItsImplementationThroughTheReflectedFunction)
{
	UTestCalls* Calls = NewObject<UTestCalls>();
	EXPECT_EQ(Calls->Score(5), 105);

	struct
	{
		int32 Base;
		int32 ReturnValue;
	} Parms{1, 0};
	Calls->ProcessEvent(Calls->FindFunctionChecked(FName(TEXT("Score"))), &Parms);
	EXPECT_EQ(Parms.ReturnValue, 101);
}
