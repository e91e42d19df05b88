// Metadata that names a property or parameter, checked across every header of a module.
#include "Parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace HeaderTool;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
	// Parses each (path, text) pair into one module and validates it; returns the errors.
	std::vector<std::string> Validate(const std::vector<std::pair<std::string, std::string>>& Headers)
	{
		FModuleModel Module;
		Module.ModuleName = "QuorvelUI";
		std::vector<std::string> Errors;
		for (const auto& [Path, Text] : Headers)
		{
			Module.Headers.emplace_back();
			if (!ParseHeaderText(Path, Text, Module.Headers.back(), Errors))
			{
				ADD_FAILURE() << Errors.back();
				return Errors;
			}
		}
		const bool bValid = ValidateModule(Module, Errors);
		EXPECT_EQ(bValid, Errors.empty());
		return Errors;
	}

	std::string Class(const std::string& Name, const std::string& Super, const std::string& Members)
	{
		return "UCLASS()\nclass " + Name + " : public " + Super + "\n{\n\tGENERATED_BODY()\npublic:\n" + Members + "};\n";
	}
}

TEST(ValidateEditCondition, AcceptsAPropertyInheritedFromAClassInAnotherHeader)
{
	const auto Errors = Validate({
		{"Derived.h", Class("UGenDerived", "UGenBase",
			"\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"bUseGrid\"))\n\tint32 Columns;\n")},
		{"Base.h", Class("UGenBase", "UObject", "\tUPROPERTY(EditAnywhere)\n\tbool bUseGrid;\n")},
	});
	EXPECT_THAT(Errors, IsEmpty());
}

TEST(ValidateEditCondition, GivesASuperClassOutsideTheModuleTheBenefitOfTheDoubtButNotUObject)
{
	const std::string Member = "\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"bIsFocusable\"))\n\tint32 Columns;\n";
	EXPECT_THAT(Validate({{"Panel.h", Class("UGenPanel", "UUserWidget", Member)}}), IsEmpty());
	EXPECT_THAT(Validate({{"Panel.h", Class("UGenPanel", "UObject", Member)}}),
		ElementsAre("Panel.h:7:8: error: EditCondition of 'Columns' names 'bIsFocusable', which is not a property of 'UGenPanel'"));
	// A chain that ends in UObject inside the module knows every property there is.
	EXPECT_THAT(Validate({{"Panel.h", Class("UGenPanel", "UGenBase", Member) + Class("UGenBase", "UObject", "")}}),
		ElementsAre("Panel.h:7:8: error: EditCondition of 'Columns' names 'bIsFocusable', which is not a property of 'UGenPanel'"));
}

TEST(ValidateEditCondition, ChecksEveryPropertyAnExpressionReadsAndSkipsLiteralsAndEnumerators)
{
	const auto Errors = Validate({{"Panel.h", Class("UGenPanel", "UObject",
		"\tUPROPERTY(EditAnywhere)\n\tbool bUseGrid;\n"
		"\tUPROPERTY(EditAnywhere)\n\tEGenLayout Layout;\n"
		"\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"bUseGrid && Layout == EGenLayout::Grid && Columns > 2 || true\"))\n\tint32 Rows;\n"
		"\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"!bUseGird && !bFrozen\", EditConditionHides))\n\tint32 Spacing;\n"
		"\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"false\"))\n\tint32 Never;\n")}});
	EXPECT_THAT(Errors, ElementsAre(
		"Panel.h:11:8: error: EditCondition of 'Rows' names 'Columns', which is not a property of 'UGenPanel'",
		"Panel.h:13:8: error: EditCondition of 'Spacing' names 'bUseGird', which is not a property of 'UGenPanel'",
		"Panel.h:13:8: error: EditCondition of 'Spacing' names 'bFrozen', which is not a property of 'UGenPanel'"));
}

TEST(ValidateEditCondition, LooksThroughSuperStructsAndReportsAgainstTheStructItself)
{
	const std::string Structs =
		"USTRUCT()\nstruct FGenBaseRow\n{\n\tGENERATED_BODY()\n\tUPROPERTY(EditAnywhere)\n\tbool bLocked = false;\n};\n"
		"USTRUCT()\nstruct FGenRow : public FGenBaseRow\n{\n\tGENERATED_BODY()\n"
		"\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"!bLocked\"))\n\tint32 Count = 0;\n"
		"\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"bHidden\"))\n\tint32 Width = 0;\n};\n";
	EXPECT_THAT(Validate({{"Rows.h", Structs}}),
		ElementsAre("Rows.h:15:8: error: EditCondition of 'Width' names 'bHidden', which is not a property of 'FGenRow'"));
}

TEST(ValidateEditCondition, ASuperChainThatLoopsBackEndsInAnErrorRatherThanHanging)
{
	const auto Errors = Validate({{"Loop.h",
		Class("UGenA", "UGenB", "\tUPROPERTY(EditAnywhere, meta = (EditCondition = \"bNowhere\"))\n\tint32 Value;\n")
		+ Class("UGenB", "UGenA", "")}});
	EXPECT_THAT(Errors, ElementsAre("Loop.h:7:8: error: EditCondition of 'Value' names 'bNowhere', which is not a property of 'UGenA'"));
}

TEST(ValidateFunctionMetadata, AcceptsParametersListedWithCommasOrPipesAndReturnValueWhenThereIsOne)
{
	const auto Errors = Validate({{"Library.h", Class("UGenLibrary", "UObject",
		"\tUFUNCTION(BlueprintCallable, meta = (AutoCreateRefTerm = \"Ids, Slots\", HidePin = \"Context|Ids\", DisplayName = \"Nobody\"))\n"
		"\tstatic void Sort(UObject* Context, const TArray<FName>& Ids, const TArray<int32>& Slots);\n"
		"\tUFUNCTION(BlueprintCallable, meta = (ExpandEnumAsExecs = \"ReturnValue\", DeterminesOutputType = \"Class\"))\n"
		"\tstatic EGenLayout Spawn(TSubclassOf<UObject> Class);\n")}});
	EXPECT_THAT(Errors, IsEmpty());
}

TEST(ValidateFunctionMetadata, ReportsEachMissingNameAtTheFunctionNameInListOrder)
{
	const auto Errors = Validate({{"Library.h", Class("UGenLibrary", "UObject",
		"\tUFUNCTION(BlueprintCallable, meta = (AutoCreateRefTerm = \"Ids, Extra, | Other\"))\n"
		"\tstatic void Sort(const TArray<FName>& Ids);\n"
		"\tUFUNCTION(BlueprintCallable, meta = (ExpandBoolAsExecs = \"ReturnValue\"))\n"
		"\tvoid Open();\n")}});
	EXPECT_THAT(Errors, ElementsAre(
		"Library.h:7:14: error: AutoCreateRefTerm of 'Sort' names 'Extra', which is not a parameter of 'UGenLibrary::Sort'",
		"Library.h:7:14: error: AutoCreateRefTerm of 'Sort' names 'Other', which is not a parameter of 'UGenLibrary::Sort'",
		"Library.h:9:7: error: ExpandBoolAsExecs of 'Open' names 'ReturnValue', which is not a parameter of 'UGenLibrary::Open'"));
}

TEST(ValidateModule, KeepsErrorsAlreadyCollectedAndJudgesOnlyItsOwn)
{
	FModuleModel Module;
	Module.Headers.emplace_back();
	std::vector<std::string> Errors{"Earlier.h:1:1: error: from another step"};
	ASSERT_TRUE(ParseHeaderText("Clean.h", Class("UGenClean", "UObject", "\tUPROPERTY()\n\tint32 Count;\n"), Module.Headers.back(), Errors));
	EXPECT_TRUE(ValidateModule(Module, Errors));
	EXPECT_THAT(Errors, ElementsAre("Earlier.h:1:1: error: from another step"));
}
