#include "Parser.h"

#include "Token.h"

#include <map>
#include <string_view>

namespace HeaderTool
{
	namespace
	{
		// A class or struct, seen only as what has properties and a super type.
		struct FPropertyOwner
		{
			const std::string* SuperName = nullptr;
			const std::vector<FPropertyDecl>* Properties = nullptr;
		};

		using FOwners = std::map<std::string, FPropertyOwner, std::less<>>;

		// Function metadata whose value lists parameters of the function.
		constexpr std::string_view ParameterListKeys[] = {"ArrayParm", "AutoCreateRefTerm", "HidePin", "DefaultToSelf",
			"WorldContext", "ExpandEnumAsExecs", "ExpandBoolAsExecs", "DeterminesOutputType"};

		std::string_view Trim(std::string_view Text)
		{
			const size_t First = Text.find_first_not_of(" \t");
			if (First == std::string_view::npos)
			{
				return {};
			}
			return Text.substr(First, Text.find_last_not_of(" \t") - First + 1);
		}

		// The roots of every class hierarchy: they reflect no properties an edit condition could read.
		bool IsPropertylessRoot(std::string_view Name)
		{
			return Name == "UObject" || Name == "UInterface";
		}

		// True when Name is a property of Owner or of a parsed super type. Once the chain reaches a type
		// outside the parsed headers nothing more is known, so the name is given the benefit of the doubt.
		bool HasProperty(const FOwners& Owners, const std::string& OwnerName, std::string_view Name)
		{
			std::string_view Current = OwnerName;
			for (size_t Depth = 0; Depth <= Owners.size(); ++Depth)
			{
				const auto Found = Owners.find(Current);
				if (Found == Owners.end())
				{
					return !IsPropertylessRoot(Current);
				}
				for (const FPropertyDecl& Property : *Found->second.Properties)
				{
					if (Property.Name == Name)
					{
						return true;
					}
				}
				if (Found->second.SuperName->empty())
				{
					return false;
				}
				Current = *Found->second.SuperName;
			}
			return false;
		}

		// The property names an edit condition reads: identifiers that are not literals and not parts
		// of a scoped enumerator such as EQuorvelContainerLayout::Grid.
		std::vector<std::string> ConditionNames(const std::string& Condition)
		{
			std::vector<std::string> Names;
			std::vector<FToken> Tokens;
			FTokenizeError Error;
			if (!Tokenize(Condition, Tokens, Error))
			{
				return Names;
			}
			for (size_t Index = 0; Index < Tokens.size(); ++Index)
			{
				const FToken& Token = Tokens[Index];
				if (Token.Kind != ETokenKind::Identifier || Token.Is("true") || Token.Is("false"))
				{
					continue;
				}
				const bool bScoped = (Index > 0 && Tokens[Index - 1].Is("::")) || Tokens[Index + 1].Is("::");
				if (!bScoped)
				{
					Names.push_back(Token.Text);
				}
			}
			return Names;
		}

		void CheckProperties(const FOwners& Owners, const std::string& OwnerName, const std::vector<FPropertyDecl>& Properties,
			std::vector<std::string>& OutErrors)
		{
			for (const FPropertyDecl& Property : Properties)
			{
				for (const auto& [Key, Value] : Property.MetaData)
				{
					if (Key != "EditCondition")
					{
						continue;
					}
					for (const std::string& Name : ConditionNames(Value))
					{
						if (!HasProperty(Owners, OwnerName, Name))
						{
							OutErrors.push_back(FormatError(Property.Location, "EditCondition of '" + Property.Name + "' names '"
								+ Name + "', which is not a property of '" + OwnerName + "'"));
						}
					}
				}
			}
		}

		void CheckFunction(const std::string& OwnerName, const FFunctionDecl& Function, std::vector<std::string>& OutErrors)
		{
			for (const auto& [Key, Value] : Function.MetaData)
			{
				bool bNamesParameters = false;
				for (std::string_view Candidate : ParameterListKeys)
				{
					bNamesParameters = bNamesParameters || Key == Candidate;
				}
				if (!bNamesParameters)
				{
					continue;
				}
				size_t Start = 0;
				while (Start <= Value.size())
				{
					size_t End = Value.find_first_of(",|", Start);
					End = End == std::string::npos ? Value.size() : End;
					const std::string_view Name = Trim(std::string_view(Value).substr(Start, End - Start));
					Start = End + 1;
					if (Name.empty())
					{
						continue;
					}
					bool bFound = Name == "ReturnValue" && Function.ReturnType.Name != "void";
					for (const FParamDecl& Param : Function.Params)
					{
						bFound = bFound || Param.Name == Name;
					}
					if (!bFound)
					{
						OutErrors.push_back(FormatError(Function.Location, Key + " of '" + Function.Name + "' names '"
							+ std::string(Name) + "', which is not a parameter of '" + OwnerName + "::" + Function.Name + "'"));
					}
				}
			}
		}
	}

	bool ValidateModule(const FModuleModel& Module, std::vector<std::string>& OutErrors)
	{
		const size_t ErrorsBefore = OutErrors.size();
		FOwners Owners;
		for (const FHeaderModel& Header : Module.Headers)
		{
			for (const FClassDecl& Class : Header.Classes)
			{
				Owners[Class.Name] = {&Class.SuperName, &Class.Properties};
			}
			for (const FStructDecl& Struct : Header.Structs)
			{
				Owners[Struct.Name] = {&Struct.SuperName, &Struct.Properties};
			}
		}
		for (const FHeaderModel& Header : Module.Headers)
		{
			for (const FClassDecl& Class : Header.Classes)
			{
				CheckProperties(Owners, Class.Name, Class.Properties, OutErrors);
				for (const FFunctionDecl& Function : Class.Functions)
				{
					CheckFunction(Class.Name, Function, OutErrors);
				}
			}
			for (const FStructDecl& Struct : Header.Structs)
			{
				CheckProperties(Owners, Struct.Name, Struct.Properties, OutErrors);
			}
		}
		return OutErrors.size() == ErrorsBefore;
	}
}
