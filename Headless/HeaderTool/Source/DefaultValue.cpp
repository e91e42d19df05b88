#include "DefaultValue.h"

#include "TokenCursor.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace HeaderTool
{
	namespace
	{
		using FTokens = std::vector<FToken>;

		bool IsIntegerType(const std::string& Name)
		{
			static const char* const Names[] = {"int8", "int16", "int32", "int64", "uint8", "uint16", "uint32",
				"uint64", "int", "unsigned", "unsigned int", "short", "long", "char", "SIZE_T"};
			for (const char* Candidate : Names)
			{
				if (Name == Candidate)
				{
					return true;
				}
			}
			return false;
		}

		bool IsIntegerLiteral(const std::string& Text)
		{
			if (Text.starts_with("0x") || Text.starts_with("0X"))
			{
				return Text.size() > 2;
			}
			size_t Index = 0;
			while (Index < Text.size() && (std::isdigit(static_cast<unsigned char>(Text[Index])) || Text[Index] == '\''))
			{
				++Index;
			}
			if (Index == 0)
			{
				return false;
			}
			for (; Index < Text.size(); ++Index)
			{
				const char Suffix = static_cast<char>(std::tolower(static_cast<unsigned char>(Text[Index])));
				if (Suffix != 'u' && Suffix != 'l')
				{
					return false;
				}
			}
			return true;
		}

		// Optional sign and an integer literal.
		std::optional<std::string> Integer(const FTokens& Tokens)
		{
			size_t Index = 0;
			std::string Sign;
			if (Tokens.size() == 2 && (Tokens[0].Is("-") || Tokens[0].Is("+")))
			{
				Sign = Tokens[0].Text == "-" ? "-" : "";
				Index = 1;
			}
			if (Tokens.size() != Index + 1 || Tokens[Index].Kind != ETokenKind::Number || !IsIntegerLiteral(Tokens[Index].Text))
			{
				return std::nullopt;
			}
			return Sign + Tokens[Index].Text;
		}

		// Optional sign and any numeric literal, as a double.
		std::optional<double> Real(const FTokens& Tokens)
		{
			size_t Index = 0;
			double Sign = 1.0;
			if (Tokens.size() == 2 && (Tokens[0].Is("-") || Tokens[0].Is("+")))
			{
				Sign = Tokens[0].Text == "-" ? -1.0 : 1.0;
				Index = 1;
			}
			if (Tokens.size() != Index + 1 || Tokens[Index].Kind != ETokenKind::Number)
			{
				return std::nullopt;
			}
			std::string Text;
			for (char C : Tokens[Index].Text)
			{
				if (C != '\'')
				{
					Text += C;
				}
			}
			const bool bHex = Text.starts_with("0x") || Text.starts_with("0X");
			while (!Text.empty() && !bHex && (Text.back() == 'f' || Text.back() == 'F' || Text.back() == 'l' || Text.back() == 'L'))
			{
				Text.pop_back();
			}
			char* End = nullptr;
			const double Value = std::strtod(Text.c_str(), &End);
			if (Text.empty() || *End != '\0')
			{
				return std::nullopt;
			}
			return Sign * Value;
		}

		std::string Format(const char* Pattern, double Value)
		{
			char Buffer[64];
			std::snprintf(Buffer, sizeof(Buffer), Pattern, Value);
			return Buffer;
		}

		std::optional<std::string> StringLiteral(const FToken& Token)
		{
			return Token.Kind == ETokenKind::String ? std::optional(Unquote(Token)) : std::nullopt;
		}

		// "abc", TEXT("abc"), and the same wrapped once in Wrapper(...), e.g. FName(TEXT("abc")).
		std::optional<std::string> Text(const FTokens& Tokens, const char* Wrapper)
		{
			if (Tokens.size() == 1)
			{
				return StringLiteral(Tokens[0]);
			}
			if (Tokens.size() == 4 && Tokens[0].Is("TEXT") && Tokens[1].Is("(") && Tokens[3].Is(")"))
			{
				return StringLiteral(Tokens[2]);
			}
			if (Tokens.size() >= 3 && Tokens[0].Is(Wrapper) && Tokens[1].Is("(") && Tokens.back().Is(")"))
			{
				if (Tokens.size() == 3)
				{
					return std::string();
				}
				return Text(FTokens(Tokens.begin() + 2, Tokens.end() - 1), Wrapper);
			}
			return std::nullopt;
		}

		// Scope::Name with the given scope; returns Name.
		std::optional<std::string> Constant(const FTokens& Tokens, const std::string& Scope)
		{
			if (Tokens.size() == 3 && Tokens[0].Is(Scope) && Tokens[1].Is("::") && Tokens[2].Kind == ETokenKind::Identifier)
			{
				return Tokens[2].Text;
			}
			return std::nullopt;
		}

		// Scope(a, b, ...) with numeric arguments.
		std::optional<std::vector<double>> Construction(const FTokens& Tokens, const std::string& Scope)
		{
			if (Tokens.size() < 3 || !Tokens[0].Is(Scope) || !Tokens[1].Is("(") || !Tokens.back().Is(")"))
			{
				return std::nullopt;
			}
			std::vector<double> Values;
			FTokens Argument;
			for (size_t Index = 2; Index < Tokens.size(); ++Index)
			{
				const bool bLast = Index + 1 == Tokens.size();
				if (Tokens[Index].Is(",") || bLast)
				{
					if (Argument.empty() && !(bLast && Values.empty()))
					{
						return std::nullopt;
					}
					if (!Argument.empty())
					{
						const std::optional<double> Value = Real(Argument);
						if (!Value)
						{
							return std::nullopt;
						}
						Values.push_back(*Value);
					}
					Argument.clear();
				}
				else
				{
					Argument.push_back(Tokens[Index]);
				}
			}
			return Values;
		}

		std::string Join(const std::vector<double>& Values, const char* Pattern, const char* Separator)
		{
			std::string Result;
			for (size_t Index = 0; Index < Values.size(); ++Index)
			{
				Result += (Index > 0 ? Separator : "") + Format(Pattern, Values[Index]);
			}
			return Result;
		}

		std::optional<std::string> Vector2D(const FTokens& Tokens)
		{
			static const std::map<std::string, std::vector<double>> Named = {
				{"ZeroVector", {0, 0}}, {"UnitVector", {1, 1}}};
			std::vector<double> Values;
			if (const std::optional<std::string> Name = Constant(Tokens, "FVector2D"))
			{
				const auto Found = Named.find(*Name);
				if (Found == Named.end())
				{
					return std::nullopt;
				}
				Values = Found->second;
			}
			else if (std::optional<std::vector<double>> Built = Construction(Tokens, "FVector2D"); Built && (Built->size() == 1 || Built->size() == 2))
			{
				Values = Built->size() == 1 ? std::vector<double>{(*Built)[0], (*Built)[0]} : *Built;
			}
			else
			{
				return std::nullopt;
			}
			return "(X=" + Format("%3.3f", Values[0]) + ",Y=" + Format("%3.3f", Values[1]) + ")";
		}

		std::optional<std::string> Vector(const FTokens& Tokens, const std::string& Scope,
			const std::map<std::string, std::vector<double>>& Named)
		{
			if (const std::optional<std::string> Name = Constant(Tokens, Scope))
			{
				const auto Found = Named.find(*Name);
				return Found == Named.end() ? std::nullopt : std::optional(Join(Found->second, "%f", ","));
			}
			std::optional<std::vector<double>> Built = Construction(Tokens, Scope);
			if (!Built || (Built->size() != 1 && Built->size() != 3))
			{
				return std::nullopt;
			}
			if (Built->size() == 1)
			{
				Built = std::vector<double>(3, (*Built)[0]);
			}
			return Join(*Built, "%f", ",");
		}

		std::optional<std::string> LinearColor(const FTokens& Tokens)
		{
			static const std::map<std::string, std::vector<double>> Named = {
				{"White", {1, 1, 1, 1}}, {"Gray", {0.5, 0.5, 0.5, 1}}, {"Black", {0, 0, 0, 1}},
				{"Transparent", {0, 0, 0, 0}}, {"Red", {1, 0, 0, 1}}, {"Green", {0, 1, 0, 1}},
				{"Blue", {0, 0, 1, 1}}, {"Yellow", {1, 1, 0, 1}}};
			std::vector<double> Values;
			if (const std::optional<std::string> Name = Constant(Tokens, "FLinearColor"))
			{
				const auto Found = Named.find(*Name);
				if (Found == Named.end())
				{
					return std::nullopt;
				}
				Values = Found->second;
			}
			else if (std::optional<std::vector<double>> Built = Construction(Tokens, "FLinearColor"); Built && (Built->size() == 3 || Built->size() == 4))
			{
				Values = *Built;
				if (Values.size() == 3)
				{
					Values.push_back(1.0);
				}
			}
			else
			{
				return std::nullopt;
			}
			return "(R=" + Format("%f", Values[0]) + ",G=" + Format("%f", Values[1]) + ",B=" + Format("%f", Values[2])
				+ ",A=" + Format("%f", Values[3]) + ")";
		}

		bool IsObjectReference(const FTypeRef& Type)
		{
			static const char* const Names[] = {"TObjectPtr", "TSubclassOf", "TSoftObjectPtr", "TSoftClassPtr",
				"TWeakObjectPtr", "TLazyObjectPtr", "TScriptInterface"};
			for (const char* Candidate : Names)
			{
				if (Type.Name == Candidate)
				{
					return true;
				}
			}
			return Type.bPointer;
		}

		bool IsEnum(const FTypeRef& Type)
		{
			if (Type.Name == "TEnumAsByte")
			{
				return true;
			}
			return Type.Name.size() > 1 && Type.Name[0] == 'E' && std::isupper(static_cast<unsigned char>(Type.Name[1]));
		}

		std::optional<std::string> Enumerator(const FTokens& Tokens)
		{
			// EFoo::Bar, EFoo::Type::Bar (namespaced enums) or a bare unscoped enumerator.
			if (Tokens.empty() || Tokens.size() % 2 == 0)
			{
				return std::nullopt;
			}
			for (size_t Index = 0; Index < Tokens.size(); ++Index)
			{
				const bool bWord = Index % 2 == 0;
				if (bWord ? Tokens[Index].Kind != ETokenKind::Identifier : !Tokens[Index].Is("::"))
				{
					return std::nullopt;
				}
			}
			return Tokens.back().Text;
		}
	}

	std::optional<std::string> NormaliseDefaultValue(const FTypeRef& Type, const std::vector<FToken>& Expression)
	{
		const FTokens& Tokens = Expression;
		if (Tokens.empty())
		{
			return std::nullopt;
		}
		if (IsObjectReference(Type))
		{
			if (Tokens.size() == 1 && (Tokens[0].Is("nullptr") || Tokens[0].Is("NULL")))
			{
				return std::string("None");
			}
			return std::nullopt;
		}
		if (Type.Name == "bool")
		{
			if (Tokens.size() == 1 && (Tokens[0].Is("true") || Tokens[0].Is("false")))
			{
				return Tokens[0].Text;
			}
			return std::nullopt;
		}
		if (IsIntegerType(Type.Name))
		{
			if (Tokens.size() == 1 && Tokens[0].Is("INDEX_NONE"))
			{
				return std::string("-1");
			}
			return Integer(Tokens);
		}
		if (Type.Name == "float" || Type.Name == "double")
		{
			const std::optional<double> Value = Real(Tokens);
			return Value ? std::optional(Format("%f", *Value)) : std::nullopt;
		}
		if (Type.Name == "FName")
		{
			if ((Tokens.size() == 1 && Tokens[0].Is("NAME_None")) || (Tokens.size() == 3 && Tokens[0].Is("FName") && Tokens[1].Is("(") && Tokens[2].Is(")")))
			{
				return std::string("None");
			}
			return Text(Tokens, "FName");
		}
		if (Type.Name == "FString")
		{
			return Text(Tokens, "FString");
		}
		if (Type.Name == "FText")
		{
			const bool bEmpty = (Tokens.size() == 5 && Tokens[0].Is("FText") && Tokens[1].Is("::") && Tokens[2].Is("GetEmpty")
				&& Tokens[3].Is("(") && Tokens[4].Is(")")) || (Tokens.size() == 3 && Tokens[0].Is("FText") && Tokens[1].Is("(") && Tokens[2].Is(")"));
			return bEmpty ? std::optional(std::string()) : std::nullopt;
		}
		if (Type.Name == "FVector2D")
		{
			return Vector2D(Tokens);
		}
		if (Type.Name == "FVector")
		{
			return Vector(Tokens, "FVector", {{"ZeroVector", {0, 0, 0}}, {"OneVector", {1, 1, 1}},
				{"UpVector", {0, 0, 1}}, {"ForwardVector", {1, 0, 0}}, {"RightVector", {0, 1, 0}}});
		}
		if (Type.Name == "FRotator")
		{
			return Vector(Tokens, "FRotator", {{"ZeroRotator", {0, 0, 0}}});
		}
		if (Type.Name == "FLinearColor")
		{
			return LinearColor(Tokens);
		}
		if (IsEnum(Type))
		{
			return Enumerator(Tokens);
		}
		return std::nullopt;
	}
}
