// What default arguments normalise to is pinned by the FunctionDefaults case; these are the ones the
// engine could not store, which must be refused rather than passed on as text.
#include "DefaultValue.h"
#include "Token.h"

#include <gtest/gtest.h>

using namespace HeaderTool;

namespace
{
	std::optional<std::string> Normalise(const char* TypeName, bool bPointer, const char* Expression)
	{
		FTypeRef Type;
		Type.Name = TypeName;
		Type.bPointer = bPointer;
		std::vector<FToken> Tokens;
		FTokenizeError Error;
		EXPECT_TRUE(Tokenize(Expression, Tokens, Error));
		Tokens.pop_back();
		return NormaliseDefaultValue(Type, Tokens);
	}
}

TEST(DefaultValue, RefusesExpressionsTheEngineCannotStore)
{
	const struct
	{
		const char* Type;
		bool bPointer;
		const char* Expression;
	} Refused[] = {
		{"int32", false, "1.5f"},
		{"int32", false, "2 * 3"},
		{"int32", false, "Count"},
		{"bool", false, "1"},
		{"float", false, "\"1\""},
		{"FName", false, "3"},
		{"FString", false, "Prefix + TEXT(\"x\")"},
		{"FText", false, "INVTEXT(\"x\")"},
		{"UObject", true, "this"},
		{"FVector2D", false, "FVector2D(1, 2, 3)"},
		{"FVector2D", false, "FVector2D::Unknown"},
		{"FLinearColor", false, "FLinearColor(1, 2)"},
		{"FQuorvelItemInstance", false, "FQuorvelItemInstance()"},
		{"EQuorvelContainerLayout", false, "EQuorvelContainerLayout::"},
	};
	for (const auto& Case : Refused)
	{
		EXPECT_FALSE(Normalise(Case.Type, Case.bPointer, Case.Expression)) << Case.Type << " = " << Case.Expression;
	}
}

TEST(DefaultValue, SingleArgumentVectorsRepeatTheirValueAndColoursDefaultToOpaque)
{
	EXPECT_EQ(Normalise("FVector2D", false, "FVector2D(-0.5f)"), "(X=-0.500,Y=-0.500)");
	EXPECT_EQ(Normalise("FVector", false, "FVector(2)"), "2.000000,2.000000,2.000000");
	EXPECT_EQ(Normalise("FLinearColor", false, "FLinearColor(1, 0.5f, 0)"), "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)");
	EXPECT_EQ(Normalise("FRotator", false, "FRotator::ZeroRotator"), "0.000000,0.000000,0.000000");
}
