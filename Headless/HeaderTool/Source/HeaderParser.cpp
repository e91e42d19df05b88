#include "HeaderParser.h"

#include "DocComment.h"

#include <array>
#include <type_traits>

namespace HeaderTool
{
	namespace
	{
		bool IsGeneratedBodyMacro(const FToken& Token)
		{
			return Token.Is("GENERATED_BODY") || Token.Is("GENERATED_UCLASS_BODY") || Token.Is("GENERATED_USTRUCT_BODY")
				|| Token.Is("GENERATED_UINTERFACE_BODY") || Token.Is("GENERATED_IINTERFACE_BODY");
		}

		bool IsReflectedTypeMacro(const FToken& Token)
		{
			return Token.Is("UCLASS") || Token.Is("UINTERFACE") || Token.Is("USTRUCT") || Token.Is("UENUM");
		}

		bool IsDelegateMacro(const FToken& Token)
		{
			return Token.Kind == ETokenKind::Identifier && Token.Text.starts_with("DECLARE_DYNAMIC_");
		}

		// Parameter count named by a DECLARE_DYNAMIC_*_<Count>Param(s) suffix; -1 when unknown.
		int ParamCountOf(std::string_view Suffix)
		{
			static constexpr std::array<std::string_view, 10> Counts = {
				"", "_OneParam", "_TwoParams", "_ThreeParams", "_FourParams", "_FiveParams", "_SixParams",
				"_SevenParams", "_EightParams", "_NineParams"};
			for (size_t Count = 0; Count < Counts.size(); ++Count)
			{
				if (Suffix == Counts[Count])
				{
					return static_cast<int>(Count);
				}
			}
			return -1;
		}
	}

	FHeaderParser::FHeaderParser(const std::vector<FToken>& Tokens, FHeaderModel& InModel)
		: Cursor(Tokens), Model(InModel)
	{
	}

	FLocation FHeaderParser::Locate(const FToken& Token) const
	{
		return {Model.Path, Token.Line, Token.Column};
	}

	void FHeaderParser::Run()
	{
		// Namespaces are entered rather than skipped: reflected types may live inside them.
		std::vector<const FToken*> OpenNamespaces;
		while (!Cursor.AtEnd())
		{
			const FToken& Token = Cursor.Peek();
			if (Token.Is("UCLASS") || Token.Is("UINTERFACE"))
			{
				ParseClass(Cursor.Next());
			}
			else if (Token.Is("USTRUCT"))
			{
				ParseStruct(Cursor.Next());
			}
			else if (Token.Is("UENUM"))
			{
				ParseEnum(Cursor.Next());
			}
			else if (Token.Is("UDELEGATE"))
			{
				const FToken& Macro = Cursor.Next();
				const FSpecifierList List = ParseSpecifiers(Macro, ESpecifierOwner::Delegate);
				if (!IsDelegateMacro(Cursor.Peek()))
				{
					FTokenCursor::Fail(Cursor.Peek(), "UDELEGATE must be followed by a DECLARE_DYNAMIC_ delegate macro");
				}
				ParseDelegate(Cursor.Next(), Macro, List.MetaData);
			}
			else if (IsDelegateMacro(Token))
			{
				ParseDelegate(Cursor.Next(), Token, {});
			}
			else if (Token.Is("UPROPERTY") || Token.Is("UFUNCTION") || IsGeneratedBodyMacro(Token))
			{
				FTokenCursor::Fail(Token, Token.Text + " is only allowed inside a UCLASS or USTRUCT");
			}
			else if (Token.Is("namespace"))
			{
				Cursor.Next();
				while (Cursor.Peek().Kind == ETokenKind::Identifier || Cursor.Check("::"))
				{
					Cursor.Next();
				}
				if (Cursor.Check("{"))
				{
					OpenNamespaces.push_back(&Cursor.Next());
				}
			}
			else if (Token.Is("}"))
			{
				if (OpenNamespaces.empty())
				{
					FTokenCursor::Fail(Token, "unbalanced '}'");
				}
				OpenNamespaces.pop_back();
				Cursor.Next();
			}
			else if (Token.Is("{") || Token.Is("(") || Token.Is("["))
			{
				// Function bodies, non-reflected classes, initialisers: nothing in them is ours.
				Cursor.Group();
			}
			else if (Token.Is(")") || Token.Is("]"))
			{
				FTokenCursor::Fail(Token, "unbalanced '" + Token.Text + "'");
			}
			else
			{
				Cursor.Next();
			}
		}
		if (!OpenNamespaces.empty())
		{
			FTokenCursor::Fail(*OpenNamespaces.back(), "namespace is not closed");
		}
	}

	std::string FHeaderParser::ParseBaseClause()
	{
		std::string SuperName;
		if (!Cursor.Test(":"))
		{
			return SuperName;
		}
		do
		{
			while (Cursor.Test("public") || Cursor.Test("protected") || Cursor.Test("private") || Cursor.Test("virtual"))
			{
			}
			const FTypeRef Base = ParseType(Cursor);
			// Later bases are interfaces (IFoo); the engine's class hierarchy follows the first.
			if (SuperName.empty())
			{
				SuperName = Base.Text;
			}
		}
		while (Cursor.Test(","));
		return SuperName;
	}

	void FHeaderParser::ParseClass(const FToken& Macro)
	{
		FClassDecl Decl;
		Decl.bInterface = Macro.Is("UINTERFACE");
		const FSpecifierList List = ParseSpecifiers(Macro, Decl.bInterface ? ESpecifierOwner::Interface : ESpecifierOwner::Class);
		Decl.Specifiers = List.Specifiers;
		Decl.MetaData = ComposeMetaData(List, Macro);

		Cursor.Expect("class", "after " + Macro.Text + "(...)");
		const FToken* NameToken = &Cursor.ExpectIdentifier("the class name");
		if (Cursor.Peek().Kind == ETokenKind::Identifier && !Cursor.Check("final"))
		{
			Decl.ApiMacro = NameToken->Text;
			NameToken = &Cursor.ExpectIdentifier("the class name");
		}
		Decl.Name = NameToken->Text;
		Decl.Location = Locate(*NameToken);
		Cursor.Test("final");
		Decl.SuperName = ParseBaseClause();
		ParseBody(Decl, Macro, *NameToken, true);
		Model.Classes.push_back(std::move(Decl));
	}

	void FHeaderParser::ParseStruct(const FToken& Macro)
	{
		FStructDecl Decl;
		const FSpecifierList List = ParseSpecifiers(Macro, ESpecifierOwner::Struct);
		Decl.Specifiers = List.Specifiers;
		Decl.MetaData = ComposeMetaData(List, Macro);

		Cursor.Expect("struct", "after USTRUCT(...)");
		const FToken* NameToken = &Cursor.ExpectIdentifier("the struct name");
		if (Cursor.Peek().Kind == ETokenKind::Identifier && !Cursor.Check("final"))
		{
			Decl.ApiMacro = NameToken->Text;
			NameToken = &Cursor.ExpectIdentifier("the struct name");
		}
		Decl.Name = NameToken->Text;
		Decl.Location = Locate(*NameToken);
		Cursor.Test("final");
		Decl.SuperName = ParseBaseClause();
		ParseBody(Decl, Macro, *NameToken, false);
		Model.Structs.push_back(std::move(Decl));
	}

	template <typename TDecl>
	void FHeaderParser::ParseBody(TDecl& Decl, const FToken& Macro, const FToken& NameToken, bool bClass)
	{
		const FToken& OpenBrace = Cursor.Expect("{", "to open the body of '" + Decl.Name + "'");
		std::string Access = bClass ? "private" : "public";
		while (true)
		{
			const FToken& Token = Cursor.Peek();
			if (Token.Kind == ETokenKind::End)
			{
				FTokenCursor::Fail(OpenBrace, "the body of '" + Decl.Name + "' is not closed");
			}
			if (Token.Is("}"))
			{
				Cursor.Next();
				break;
			}
			if (IsGeneratedBodyMacro(Token))
			{
				Cursor.Next();
				Cursor.Expect("(", "after " + Token.Text);
				Cursor.Expect(")", "to close " + Token.Text + "(");
				Cursor.Test(";");
				Decl.GeneratedBodyLine = Token.Line;
				// GENERATED_BODY leaves a class private; the legacy macros leave it public.
				if (bClass)
				{
					Access = Token.Is("GENERATED_BODY") ? "private" : "public";
				}
			}
			else if ((Token.Is("public") || Token.Is("protected") || Token.Is("private")) && Cursor.Peek(1).Is(":"))
			{
				Access = Cursor.Next().Text;
				Cursor.Next();
			}
			else if (Token.Is("UPROPERTY"))
			{
				FPropertyDecl Property = ParseProperty(Cursor.Next());
				Property.Access = Access;
				Decl.Properties.push_back(std::move(Property));
			}
			else if (Token.Is("UFUNCTION"))
			{
				if constexpr (std::is_same_v<TDecl, FClassDecl>)
				{
					FFunctionDecl Function = ParseFunction(Cursor.Next());
					Function.Access = Access;
					Decl.Functions.push_back(std::move(Function));
				}
				else
				{
					FTokenCursor::Fail(Token, "UFUNCTION is not allowed in a USTRUCT");
				}
			}
			else if (IsReflectedTypeMacro(Token))
			{
				FTokenCursor::Fail(Token, Token.Text + " cannot be nested inside '" + Decl.Name + "'");
			}
			else if (IsDelegateMacro(Token) || Token.Is("UDELEGATE"))
			{
				FTokenCursor::Fail(Token, "dynamic delegates must be declared at namespace scope");
			}
			else if (Token.Is(Decl.Name) && Cursor.Peek(1).Is("("))
			{
				if constexpr (std::is_same_v<TDecl, FClassDecl>)
				{
					Decl.bDeclaresConstructor = true;
				}
				Cursor.Next();
			}
			else if (Token.Is("~") && Cursor.Peek(1).Is(Decl.Name))
			{
				Cursor.Next();
				Cursor.Next();
			}
			else if (Token.Is("{") || Token.Is("(") || Token.Is("["))
			{
				Cursor.Group();
			}
			else if (Token.Is(")") || Token.Is("]"))
			{
				FTokenCursor::Fail(Token, "unbalanced '" + Token.Text + "' in the body of '" + Decl.Name + "'");
			}
			else
			{
				Cursor.Next();
			}
		}
		Cursor.Expect(";", "after the body of '" + Decl.Name + "'");
		if (Decl.GeneratedBodyLine == 0)
		{
			FTokenCursor::Fail(NameToken, Macro.Text + " '" + Decl.Name + "' has no GENERATED_BODY()");
		}
	}

	void FHeaderParser::ParseEnum(const FToken& Macro)
	{
		FEnumDecl Decl;
		const FSpecifierList List = ParseSpecifiers(Macro, ESpecifierOwner::Enum);
		Decl.Specifiers = List.Specifiers;
		Decl.MetaData = ComposeMetaData(List, Macro);

		// The engine's older "namespace EFoo { enum Type { ... }; }" form reflects as EFoo.
		const bool bNamespaced = Cursor.Test("namespace");
		const FToken* NameToken = nullptr;
		if (bNamespaced)
		{
			NameToken = &Cursor.ExpectIdentifier("the enum's namespace");
			Decl.Namespace = NameToken->Text;
			Cursor.Expect("{", "to open the enum's namespace");
		}
		Cursor.Expect("enum", "after UENUM(...)");
		Decl.bEnumClass = Cursor.Test("class") || Cursor.Test("struct");
		const FToken& InnerName = Cursor.ExpectIdentifier("the enum name");
		if (!bNamespaced)
		{
			NameToken = &InnerName;
		}
		Decl.Name = NameToken->Text;
		Decl.Location = Locate(*NameToken);
		if (Cursor.Test(":"))
		{
			Decl.UnderlyingType = ParseType(Cursor).Text;
		}
		const FToken& OpenBrace = Cursor.Expect("{", "to open the body of enum '" + Decl.Name + "'");
		while (!Cursor.Test("}"))
		{
			if (Cursor.AtEnd())
			{
				FTokenCursor::Fail(OpenBrace, "the body of enum '" + Decl.Name + "' is not closed");
			}
			const FToken& ValueToken = Cursor.ExpectIdentifier("an enumerator");
			FEnumValueDecl Value;
			Value.Name = ValueToken.Text;
			Value.Location = Locate(ValueToken);
			if (Cursor.Test("="))
			{
				const std::vector<FToken> Expression = Cursor.Until({",", "}", "UMETA"}, ValueToken, "the value of '" + Value.Name + "'");
				if (Expression.empty())
				{
					FTokenCursor::Fail(Cursor.Peek(), "expected a value for enumerator '" + Value.Name + "'");
				}
				Value.Value = JoinTokens(Expression);
			}
			if (Cursor.Check("UMETA"))
			{
				const FToken& Umeta = Cursor.Next();
				ParseMetaList(Umeta, Value.MetaData);
			}
			const std::string ToolTip = CleanDocComment(ValueToken.Comment);
			if (!ToolTip.empty())
			{
				SetKeyValue(Value.MetaData, "ToolTip", ToolTip);
			}
			Decl.Values.push_back(std::move(Value));
			if (!Cursor.Test(",") && !Cursor.Check("}"))
			{
				Cursor.Expect(",", "between enumerators");
			}
		}
		Cursor.Expect(";", "after the body of enum '" + Decl.Name + "'");
		if (bNamespaced)
		{
			Cursor.Expect("}", "to close the enum's namespace");
		}
		Model.Enums.push_back(std::move(Decl));
	}

	void FHeaderParser::ParseDelegate(const FToken& Macro, const FToken& DocSource, FKeyValues MetaData)
	{
		FDelegateDecl Decl;
		std::string_view Rest = Macro.Text;
		if (Rest.starts_with("DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE"))
		{
			FTokenCursor::Fail(Macro, "sparse dynamic delegates are not supported");
		}
		if (Rest.starts_with("DECLARE_DYNAMIC_MULTICAST_DELEGATE"))
		{
			Decl.bMulticast = true;
			Rest.remove_prefix(std::string_view("DECLARE_DYNAMIC_MULTICAST_DELEGATE").size());
		}
		else if (Rest.starts_with("DECLARE_DYNAMIC_DELEGATE"))
		{
			Rest.remove_prefix(std::string_view("DECLARE_DYNAMIC_DELEGATE").size());
		}
		else
		{
			FTokenCursor::Fail(Macro, "unknown delegate macro '" + Macro.Text + "'");
		}
		const bool bRetVal = !Decl.bMulticast && Rest.starts_with("_RetVal");
		if (bRetVal)
		{
			Rest.remove_prefix(std::string_view("_RetVal").size());
		}
		const int ParamCount = ParamCountOf(Rest);
		if (ParamCount < 0)
		{
			FTokenCursor::Fail(Macro, "unknown delegate macro '" + Macro.Text + "'");
		}

		const FToken& Open = Cursor.Expect("(", "after " + Macro.Text);
		std::vector<std::vector<FToken>> Arguments;
		if (!Cursor.Check(")"))
		{
			do
			{
				Arguments.push_back(Cursor.Until({",", ")", ";"}, Open, Macro.Text + "("));
				if (Cursor.Check(";"))
				{
					FTokenCursor::Fail(Open, Macro.Text + "( is not closed");
				}
			}
			while (Cursor.Test(","));
		}
		Cursor.Expect(")", "to close " + Macro.Text + "(");
		Cursor.Test(";");

		const size_t Expected = (bRetVal ? 1 : 0) + 1 + 2 * static_cast<size_t>(ParamCount);
		if (Arguments.size() != Expected)
		{
			FTokenCursor::Fail(Macro, Macro.Text + " takes " + std::to_string(Expected) + " arguments, found "
				+ std::to_string(Arguments.size()));
		}
		for (const std::vector<FToken>& Argument : Arguments)
		{
			if (Argument.empty())
			{
				FTokenCursor::Fail(Open, "empty argument in " + Macro.Text + "(");
			}
		}

		auto ParseWholeType = [](std::vector<FToken> Tokens, const FToken& Fallback)
		{
			Tokens.push_back(FToken{ETokenKind::End, "", Fallback.Line, Fallback.Column, ""});
			FTokenCursor TypeCursor(Tokens);
			const FTypeRef Type = ParseType(TypeCursor);
			if (!TypeCursor.AtEnd())
			{
				FTokenCursor::Fail(TypeCursor.Peek(), "unexpected '" + TypeCursor.Peek().Text + "' in a delegate parameter type");
			}
			return Type;
		};

		size_t Index = 0;
		if (bRetVal)
		{
			Decl.ReturnType = ParseWholeType(Arguments[Index++], Open);
		}
		else
		{
			Decl.ReturnType.Name = Decl.ReturnType.Text = "void";
		}
		const std::vector<FToken>& NameTokens = Arguments[Index++];
		if (NameTokens.size() != 1 || NameTokens[0].Kind != ETokenKind::Identifier)
		{
			FTokenCursor::Fail(NameTokens[0], "expected the delegate type name");
		}
		Decl.Name = NameTokens[0].Text;
		for (int Param = 0; Param < ParamCount; ++Param)
		{
			FParamDecl ParamDecl;
			ParamDecl.Type = ParseWholeType(Arguments[Index++], Open);
			const std::vector<FToken>& ParamName = Arguments[Index++];
			if (ParamName.size() != 1 || ParamName[0].Kind != ETokenKind::Identifier)
			{
				FTokenCursor::Fail(ParamName[0], "expected a parameter name in " + Macro.Text);
			}
			ParamDecl.Name = ParamName[0].Text;
			ParamDecl.Location = Locate(ParamName[0]);
			Decl.Params.push_back(std::move(ParamDecl));
		}

		Decl.MetaData = std::move(MetaData);
		const std::string ToolTip = CleanDocComment(DocSource.Comment);
		if (!ToolTip.empty())
		{
			SetKeyValue(Decl.MetaData, "ToolTip", ToolTip);
		}
		Decl.Line = Macro.Line;
		Decl.Location = Locate(Macro);
		Model.Delegates.push_back(std::move(Decl));
	}
}
