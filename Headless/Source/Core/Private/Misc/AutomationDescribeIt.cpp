#include "Misc/AutomationTest.h"

namespace
{
	/** A BeforeEach, It or AfterEach step that runs its work at once. */
	class FSingleExecuteLatentCommand final : public IAutomationLatentCommand
	{
	public:
		FSingleExecuteLatentCommand(FAutomationSpecBase& InTest, TFunction<void()> InWork, bool bInSkipIfErrored)
			: Test(InTest)
			, Work(MoveTemp(InWork))
			, bSkipIfErrored(bInSkipIfErrored)
		{
		}

		virtual bool Update() override
		{
			if (!(bSkipIfErrored && Test.HasAnyErrors()))
			{
				Work();
			}
			return true;
		}

	private:
		FAutomationSpecBase& Test;
		TFunction<void()> Work;
		bool bSkipIfErrored;
	};

	// Joins the non-empty parts of a path; a part that starts or ends in white space is joined as it is.
	FString JoinDescriptions(const TArray<FString>& Parts, const TCHAR* Separator)
	{
		FString Result;
		for (const FString& Part : Parts)
		{
			if (Part.IsEmpty())
			{
				continue;
			}
			if (!Result.IsEmpty() && !FChar::IsWhitespace(Result[Result.Len() - 1]) && !FChar::IsWhitespace(Part[0]))
			{
				Result += Separator;
			}
			Result += Part;
		}
		return Result;
	}
}

/**
 * A latent step: starts its work with a Done delegate and finishes on a later update once Done has
 * been executed, or with an error once its time-out has passed. The same command runs again each
 * time its case runs, so every run has a state of its own, and a Done that arrives after its run
 * ended (late, or twice) changes nothing.
 */
class FAutomationSpecBase::FUntilDoneLatentCommand final : public IAutomationLatentCommand
{
public:
	FUntilDoneLatentCommand(FAutomationSpecBase& InTest, TFunction<void(const FDoneDelegate&)> InWork, const FTimespan& InTimeout, bool bInSkipIfErrored)
		: Test(InTest)
		, Work(MoveTemp(InWork))
		, Timeout(InTimeout)
		, bSkipIfErrored(bInSkipIfErrored)
	{
	}

	/** Forgets the run in progress, if any; its Done no longer counts. */
	void Reset()
	{
		Run.Reset();
	}

	virtual bool Update() override
	{
		if (!Run.IsValid())
		{
			if (bSkipIfErrored && Test.HasAnyErrors())
			{
				return true;
			}
			Run = MakeShared<FRun>();
			Run->StartSeconds = FPlatformTime::Seconds();
			Work(FDoneDelegate::CreateLambda([WeakRun = TWeakPtr<FRun>(Run)]()
			{
				if (const TSharedPtr<FRun> PinnedRun = WeakRun.Pin())
				{
					PinnedRun->bDone = true;
				}
			}));
		}

		if (Run->bDone)
		{
			Run.Reset();
			return true;
		}
		if (FPlatformTime::Seconds() - Run->StartSeconds >= Timeout.GetTotalSeconds())
		{
			Run.Reset();
			Test.AddError(FString::Printf(TEXT("Latent command timed out after %.3f seconds without calling Done."), Timeout.GetTotalSeconds()), 0);
			return true;
		}
		return false;
	}

private:
	struct FRun
	{
		std::atomic<bool> bDone = false;
		double StartSeconds = 0.0;
	};

	FAutomationSpecBase& Test;
	TFunction<void(const FDoneDelegate&)> Work;
	FTimespan Timeout;
	bool bSkipIfErrored;
	TSharedPtr<FRun> Run;
};

struct FAutomationSpecBase::FItDefinition
{
	FString Description;
	FString Id;
	TSharedRef<IAutomationLatentCommand> Command;
};

struct FAutomationSpecBase::FDefinitionScope
{
	TArray<TSharedRef<IAutomationLatentCommand>> BeforeEach;
	TArray<TSharedRef<IAutomationLatentCommand>> AfterEach;
	// In declaration order; each entry holds either an It or a nested Describe.
	TArray<TPair<TSharedPtr<FItDefinition>, TSharedPtr<FDefinitionScope>>> Entries;
};

struct FAutomationSpecBase::FCase
{
	FString Id;
	FString Description;
	TArray<TSharedRef<IAutomationLatentCommand>> Commands;
};

FAutomationSpecBase::FAutomationSpecBase(const FString& InName, const bool bInComplexTask)
	: FAutomationTestBase(InName, bInComplexTask)
	, DefaultTimeout(FTimespan::FromSeconds(30.0))
	, bEnableSkipIfError(true)
	, RootDefinitionScope(MakeShared<FDefinitionScope>())
{
	DefinitionScopeStack.Push(RootDefinitionScope);
}

FAutomationSpecBase::~FAutomationSpecBase() = default;

void FAutomationSpecBase::Describe(const FString& InDescription, TFunction<void()> DoWork)
{
	const TSharedRef<FDefinitionScope> Scope = MakeShared<FDefinitionScope>();
	DefinitionScopeStack.Last()->Entries.Add(TPair<TSharedPtr<FItDefinition>, TSharedPtr<FDefinitionScope>>(nullptr, Scope));
	DefinitionScopeStack.Push(Scope);
	Description.Push(InDescription);
	DoWork();
	Description.Pop();
	DefinitionScopeStack.Pop();
}

void FAutomationSpecBase::It(const FString& InDescription, TFunction<void()> DoWork)
{
	AddIt(InDescription, MakeShared<FSingleExecuteLatentCommand>(*this, MoveTemp(DoWork), bEnableSkipIfError));
}

void FAutomationSpecBase::LatentIt(const FString& InDescription, TFunction<void(const FDoneDelegate&)> DoWork)
{
	LatentIt(InDescription, DefaultTimeout, MoveTemp(DoWork));
}

void FAutomationSpecBase::LatentIt(const FString& InDescription, const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork)
{
	AddIt(InDescription, MakeLatentStep(MoveTemp(DoWork), Timeout, bEnableSkipIfError));
}

void FAutomationSpecBase::BeforeEach(TFunction<void()> DoWork)
{
	DefinitionScopeStack.Last()->BeforeEach.Push(MakeShared<FSingleExecuteLatentCommand>(*this, MoveTemp(DoWork), bEnableSkipIfError));
}

void FAutomationSpecBase::LatentBeforeEach(TFunction<void(const FDoneDelegate&)> DoWork)
{
	LatentBeforeEach(DefaultTimeout, MoveTemp(DoWork));
}

void FAutomationSpecBase::LatentBeforeEach(const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork)
{
	DefinitionScopeStack.Last()->BeforeEach.Push(MakeLatentStep(MoveTemp(DoWork), Timeout, bEnableSkipIfError));
}

// AfterEach steps never skip: they release what the BeforeEach steps set up, even after an error.
void FAutomationSpecBase::AfterEach(TFunction<void()> DoWork)
{
	DefinitionScopeStack.Last()->AfterEach.Push(MakeShared<FSingleExecuteLatentCommand>(*this, MoveTemp(DoWork), false));
}

void FAutomationSpecBase::LatentAfterEach(TFunction<void(const FDoneDelegate&)> DoWork)
{
	LatentAfterEach(DefaultTimeout, MoveTemp(DoWork));
}

void FAutomationSpecBase::LatentAfterEach(const FTimespan& Timeout, TFunction<void(const FDoneDelegate&)> DoWork)
{
	DefinitionScopeStack.Last()->AfterEach.Push(MakeLatentStep(MoveTemp(DoWork), Timeout, false));
}

TSharedRef<IAutomationLatentCommand> FAutomationSpecBase::MakeLatentStep(TFunction<void(const FDoneDelegate&)> DoWork, const FTimespan& Timeout, bool bSkipIfErrored)
{
	const TSharedRef<FUntilDoneLatentCommand> Step = MakeShared<FUntilDoneLatentCommand>(*this, MoveTemp(DoWork), Timeout, bSkipIfErrored);
	LatentSteps.Add(Step);
	return Step;
}

void FAutomationSpecBase::AddIt(const FString& InDescription, TSharedRef<IAutomationLatentCommand> Command)
{
	Description.Push(InDescription);
	const TSharedRef<FItDefinition> ItDefinition = MakeShared<FItDefinition>(FItDefinition{ GetDescription(), GetId(), MoveTemp(Command) });
	Description.Pop();
	DefinitionScopeStack.Last()->Entries.Add(TPair<TSharedPtr<FItDefinition>, TSharedPtr<FDefinitionScope>>(ItDefinition, nullptr));
}

FString FAutomationSpecBase::GetDescription() const
{
	return JoinDescriptions(Description, TEXT("."));
}

FString FAutomationSpecBase::GetId() const
{
	// An It may name its own stable id at the end of its description: "does something [Id]".
	const FString& Last = Description.Last();
	int32 OpeningBracket = INDEX_NONE;
	if (Last.EndsWith(TEXT("]")) && Last.FindLastChar(TEXT('['), OpeningBracket) && OpeningBracket < Last.Len() - 2)
	{
		return Last.Mid(OpeningBracket + 1, Last.Len() - OpeningBracket - 2);
	}
	return JoinDescriptions(Description, TEXT(" "));
}

void FAutomationSpecBase::EnsureDefinitions() const
{
	if (bHasBeenDefined)
	{
		return;
	}
	FAutomationSpecBase* const MutableThis = const_cast<FAutomationSpecBase*>(this);
	MutableThis->bHasBeenDefined = true;
	MutableThis->Define();
	MutableThis->Bake(*RootDefinitionScope, {}, {});
	// The definition tree is not needed once every case holds its own steps.
	MutableThis->RootDefinitionScope->Entries.Empty();
}

void FAutomationSpecBase::Bake(const FDefinitionScope& Scope, TArray<TSharedRef<IAutomationLatentCommand>> BeforeEachSteps, TArray<TSharedRef<IAutomationLatentCommand>> AfterEachSteps)
{
	BeforeEachSteps.Append(Scope.BeforeEach);
	AfterEachSteps.Append(Scope.AfterEach);
	for (const TPair<TSharedPtr<FItDefinition>, TSharedPtr<FDefinitionScope>>& Entry : Scope.Entries)
	{
		if (Entry.Value.IsValid())
		{
			Bake(*Entry.Value, BeforeEachSteps, AfterEachSteps);
			continue;
		}
		const FItDefinition& ItDefinition = *Entry.Key;
		checkf(!IdToCaseMap.Contains(ItDefinition.Id), "Two Its of one describe/it automation test have the same id");
		const TSharedRef<FCase> Case = MakeShared<FCase>();
		Case->Id = ItDefinition.Id;
		Case->Description = ItDefinition.Description;
		Case->Commands = BeforeEachSteps;
		Case->Commands.Add(ItDefinition.Command);
		for (int32 Index = AfterEachSteps.Num() - 1; Index >= 0; --Index)
		{
			Case->Commands.Add(AfterEachSteps[Index]);
		}
		Cases.Add(Case);
		IdToCaseMap.Add(Case->Id, Case);
	}
}

void FAutomationSpecBase::GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const
{
	EnsureDefinitions();
	for (const TSharedRef<FCase>& Case : Cases)
	{
		OutBeautifiedNames.Add(Case->Description);
		OutTestCommands.Add(Case->Id);
	}
}

bool FAutomationSpecBase::RunTest(const FString& InParameters)
{
	EnsureDefinitions();
	TArray<TSharedRef<FCase>> ToRun;
	if (InParameters.IsEmpty())
	{
		ToRun = Cases;
	}
	else if (const TSharedRef<FCase>* Case = IdToCaseMap.Find(InParameters))
	{
		ToRun.Add(*Case);
	}
	else
	{
		AddError(FString::Printf(TEXT("%s has no It with the id '%s'."), *GetBeautifiedTestName(), *InParameters));
		return false;
	}
	for (const TSharedRef<FUntilDoneLatentCommand>& Step : LatentSteps)
	{
		Step->Reset();
	}
	for (const TSharedRef<FCase>& Case : ToRun)
	{
		for (const TSharedRef<IAutomationLatentCommand>& Command : Case->Commands)
		{
			FAutomationTestFramework::Get().EnqueueLatentCommand(Command);
		}
	}
	return true;
}
