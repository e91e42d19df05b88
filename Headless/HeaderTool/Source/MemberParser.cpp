#include "HeaderParser.h"

#include "DefaultValue.h"
#include "DocComment.h"

namespace HeaderTool
{
	namespace
	{
		bool IsFundamentalModifier(const FToken& Token)
		{
			return Token.Is("unsigned") || Token.Is("signed") || Token.Is("short") || Token.Is("long");
		}

		bool EndsMemberList(const FToken& Token)
		{
			return Token.Kind == ETokenKind::End || Token.Is("}") || Token.Is("UPROPERTY") || Token.Is("UFUNCTION")
				|| Token.Is("GENERATED_BODY") || Token.Is("public") || Token.Is("protected") || Token.Is("private");
		}

		bool IsReflectionMacro(const FToken& Token)
		{
			return Token.Is("UPROPERTY") || Token.Is("UFUNCTION") || Token.Is("GENERATED_BODY");
		}

		// A parameter the function writes to: a non-const reference.
		bool IsOutParam(const FParamDecl& Param)
		{
			return Param.Type.bReference && !Param.Type.bConst;
		}
	}

	std::string FormatType(const FTypeRef& Type)
	{
		std::string Text = Type.bConst ? "const " + Type.Name : Type.Name;
		if (!Type.TemplateArgs.empty())
		{
			Text += '<';
			for (size_t Index = 0; Index < Type.TemplateArgs.size(); ++Index)
			{
				Text += (Index > 0 ? ", " : "") + Type.TemplateArgs[Index].Text;
			}
			Text += '>';
		}
		if (Type.bPointer)
		{
			Text += '*';
		}
		if (Type.bReference)
		{
			Text += '&';
		}
		return Text;
	}

	FTypeRef ParseType(FTokenCursor& Cursor)
	{
		FTypeRef Type;
		Type.bConst = Cursor.Test("const");
		// In-place forward declarations: "class UTexture2D* Icon".
		if (!Cursor.Test("class") && !Cursor.Test("struct") && !Cursor.Test("enum"))
		{
			Cursor.Test("typename");
		}
		if (IsFundamentalModifier(Cursor.Peek()))
		{
			Type.Name = Cursor.Next().Text;
			while (IsFundamentalModifier(Cursor.Peek()) || Cursor.Check("int") || Cursor.Check("char"))
			{
				Type.Name += " " + Cursor.Next().Text;
			}
		}
		else
		{
			if (Cursor.Check("::"))
			{
				Type.Name = Cursor.Next().Text;
			}
			Type.Name += Cursor.ExpectIdentifier("a type").Text;
			while (Cursor.Check("::"))
			{
				Cursor.Next();
				Type.Name += "::" + Cursor.ExpectIdentifier("a name after '::'").Text;
			}
		}
		if (Cursor.Test("<"))
		{
			do
			{
				if (Cursor.Peek().Kind == ETokenKind::Number)
				{
					FTypeRef Constant;
					Constant.Name = Constant.Text = Cursor.Next().Text;
					Type.TemplateArgs.push_back(std::move(Constant));
				}
				else
				{
					Type.TemplateArgs.push_back(ParseType(Cursor));
				}
			}
			while (Cursor.Test(","));
			Cursor.Expect(">", "to close the template arguments of '" + Type.Name + "'");
		}
		if (Cursor.Test("const"))
		{
			Type.bConst = true;
		}
		if (Cursor.Test("*"))
		{
			Type.bPointer = true;
			if (Cursor.Check("*"))
			{
				FTokenCursor::Fail(Cursor.Peek(), "pointers to pointers cannot be reflected");
			}
			Cursor.Test("const");
		}
		if (Cursor.Test("&"))
		{
			Type.bReference = true;
			Cursor.Test("&");
		}
		Type.Text = FormatType(Type);
		return Type;
	}

	FPropertyDecl FHeaderParser::ParseProperty(const FToken& Macro)
	{
		FPropertyDecl Decl;
		const FSpecifierList List = ParseSpecifiers(Macro, ESpecifierOwner::Property);
		Decl.Specifiers = List.Specifiers;
		Decl.MetaData = ComposeMetaData(List, Macro);

		const std::string NotAVariable = "UPROPERTY must be followed by a member variable declaration";
		if (EndsMemberList(Cursor.Peek()) || Cursor.Check("static") || Cursor.Check("virtual") || Cursor.Check("UENUM")
			|| Cursor.Check("USTRUCT") || Cursor.Check("UCLASS") || Cursor.Check("using") || Cursor.Check("typedef"))
		{
			FTokenCursor::Fail(Cursor.Peek(), NotAVariable);
		}
		Cursor.Test("mutable");
		if (Cursor.Peek().Kind != ETokenKind::Identifier && !Cursor.Check("::"))
		{
			FTokenCursor::Fail(Cursor.Peek(), NotAVariable);
		}
		Decl.Type = ParseType(Cursor);
		const FToken& NameToken = Cursor.ExpectIdentifier("the property name");
		Decl.Name = NameToken.Text;
		Decl.Location = Locate(NameToken);
		if (Cursor.Check("("))
		{
			FTokenCursor::Fail(NameToken, NotAVariable + ", and '" + Decl.Name + "' is a function");
		}
		if (Cursor.Check("["))
		{
			const FToken& Open = Cursor.Next();
			const std::vector<FToken> Dimension = Cursor.Until({"]"}, Open, "'['");
			if (Dimension.empty())
			{
				FTokenCursor::Fail(Open, "a fixed array property needs a size");
			}
			Cursor.Next();
			Decl.ArrayDim = JoinTokens(Dimension);
		}
		if (Cursor.Check(":"))
		{
			// A bitfield bool has no address to reflect; the engine's accessor thunks are not generated here.
			FTokenCursor::Fail(Cursor.Peek(), "bitfield property '" + Decl.Name + "' is not supported; use bool");
		}
		if (Cursor.Check("="))
		{
			const FToken& Equals = Cursor.Next();
			const std::vector<FToken> Initialiser = Cursor.Until({";"}, Equals, "the initialiser of '" + Decl.Name + "'");
			for (const FToken& Token : Initialiser)
			{
				if (IsReflectionMacro(Token))
				{
					FTokenCursor::Fail(Token, "expected ';' after the declaration of '" + Decl.Name + "'");
				}
			}
		}
		else if (Cursor.Check("{"))
		{
			Cursor.Group();
		}
		Cursor.Expect(";", "after the declaration of '" + Decl.Name + "'");
		return Decl;
	}

	FParamDecl FHeaderParser::ParseParam(FTokenCursor& Params, std::vector<FToken>& OutDefault)
	{
		if (Params.Check("UPARAM"))
		{
			FTokenCursor::Fail(Params.Peek(), "UPARAM is not supported");
		}
		FParamDecl Param;
		Param.Type = ParseType(Params);
		const FToken& NameToken = Params.ExpectIdentifier("a parameter name");
		Param.Name = NameToken.Text;
		Param.Location = Locate(NameToken);
		if (Params.Check("["))
		{
			FTokenCursor::Fail(Params.Peek(), "array parameters cannot be reflected");
		}
		if (Params.Check("="))
		{
			const FToken& Equals = Params.Next();
			OutDefault = Params.Until({","}, Equals, "the default of '" + Param.Name + "'", true);
			if (OutDefault.empty())
			{
				FTokenCursor::Fail(Equals, "expected a default value for '" + Param.Name + "'");
			}
			Param.DefaultValue = JoinTokens(OutDefault);
		}
		return Param;
	}

	FFunctionDecl FHeaderParser::ParseFunction(const FToken& Macro)
	{
		FFunctionDecl Decl;
		const FSpecifierList List = ParseSpecifiers(Macro, ESpecifierOwner::Function);
		Decl.Specifiers = List.Specifiers;

		const std::string NotAFunction = "UFUNCTION must be followed by a function declaration";
		while (true)
		{
			if (Cursor.Test("virtual"))
			{
				Decl.bVirtual = true;
			}
			else if (Cursor.Test("static"))
			{
				Decl.bStatic = true;
			}
			else if (!(Cursor.Test("inline") || Cursor.Test("FORCEINLINE") || Cursor.Test("FORCENOINLINE")
				|| Cursor.Test("explicit") || Cursor.Test("constexpr")))
			{
				break;
			}
		}
		if (EndsMemberList(Cursor.Peek()) || Cursor.Peek().Kind != ETokenKind::Identifier)
		{
			FTokenCursor::Fail(Cursor.Peek(), NotAFunction);
		}
		Decl.ReturnType = ParseType(Cursor);
		const FToken& NameToken = Cursor.ExpectIdentifier("the function name");
		Decl.Name = NameToken.Text;
		Decl.Location = Locate(NameToken);
		if (!Cursor.Check("("))
		{
			FTokenCursor::Fail(Cursor.Peek(), NotAFunction + ", and '" + Decl.Name + "' is not one");
		}

		const FToken& Open = Cursor.Next();
		std::vector<FToken> ParamTokens = Cursor.Until({")", ";"}, Open, "the parameters of '" + Decl.Name + "'");
		if (!Cursor.Check(")"))
		{
			FTokenCursor::Fail(Open, "the parameter list of '" + Decl.Name + "' is not closed");
		}
		const FToken& Close = Cursor.Next();
		ParamTokens.push_back(FToken{ETokenKind::End, "", Close.Line, Close.Column, ""});
		FTokenCursor Params(ParamTokens);
		std::vector<std::vector<FToken>> DefaultExpressions;
		if (!Params.AtEnd() && !(Params.Check("void") && Params.Peek(1).Kind == ETokenKind::End))
		{
			do
			{
				DefaultExpressions.emplace_back();
				Decl.Params.push_back(ParseParam(Params, DefaultExpressions.back()));
			}
			while (Params.Test(","));
			if (!Params.AtEnd())
			{
				FTokenCursor::Fail(Params.Peek(), "unexpected '" + Params.Peek().Text + "' in the parameters of '" + Decl.Name + "'");
			}
		}

		while (true)
		{
			if (Cursor.Test("const"))
			{
				Decl.bConst = true;
			}
			else if (!(Cursor.Test("override") || Cursor.Test("final") || Cursor.Test("noexcept")))
			{
				break;
			}
		}
		if (Cursor.Check("{"))
		{
			Cursor.Group();
			Cursor.Test(";");
		}
		else
		{
			if (Cursor.Test("PURE_VIRTUAL"))
			{
				if (!Cursor.Check("("))
				{
					FTokenCursor::Fail(Cursor.Peek(), "expected '(' after PURE_VIRTUAL");
				}
				Cursor.Group();
				Cursor.Test(";");
			}
			else
			{
				if (Cursor.Test("="))
				{
					const FToken& Value = Cursor.Next();
					if (!(Value.Text == "0" || Value.Is("default") || Value.Is("delete")))
					{
						FTokenCursor::Fail(Value, "expected '0' after '='");
					}
				}
				Cursor.Expect(";", "after the declaration of '" + Decl.Name + "'");
			}
		}

		const std::string* Pure = FindKeyValue(Decl.Specifiers, "BlueprintPure");
		if (Pure && !EqualsIgnoreCase(*Pure, "false") && Decl.ReturnType.Name == "void" && !Decl.ReturnType.bPointer)
		{
			bool bHasOutput = false;
			for (const FParamDecl& Param : Decl.Params)
			{
				bHasOutput = bHasOutput || IsOutParam(Param);
			}
			if (!bHasOutput)
			{
				FTokenCursor::Fail(NameToken, "BlueprintPure function '" + Decl.Name + "' must return a value or have an output parameter");
			}
		}

		Decl.MetaData = ComposeMetaData(List, Macro);
		FKeyValues Defaults;
		for (size_t Index = 0; Index < Decl.Params.size(); ++Index)
		{
			const FParamDecl& Param = Decl.Params[Index];
			if (Param.DefaultValue.empty())
			{
				continue;
			}
			const std::optional<std::string> Normalised = NormaliseDefaultValue(Param.Type, DefaultExpressions[Index]);
			if (!Normalised)
			{
				FTokenCursor::Fail(DefaultExpressions[Index].front(), "unsupported default value '" + Param.DefaultValue
					+ "' for parameter '" + Param.Name + "' of type '" + Param.Type.Text + "'");
			}
			Defaults.emplace_back("CPP_Default_" + Param.Name, *Normalised);
		}
		// Defaults go before the tooltip, after the explicit metadata.
		auto ToolTip = Decl.MetaData.end();
		if (!Decl.MetaData.empty() && Decl.MetaData.back().first == "ToolTip")
		{
			ToolTip = Decl.MetaData.end() - 1;
		}
		Decl.MetaData.insert(ToolTip, Defaults.begin(), Defaults.end());
		return Decl;
	}
}
