// The value kinds of a JSON document and the tokens a writer or reader steps through.
#pragma once

#include "CoreMinimal.h"

enum class EJson
{
	None,
	Null,
	String,
	Number,
	Boolean,
	Array,
	Object
};

enum class EJsonToken
{
	None,
	Comma,
	CurlyOpen,
	CurlyClose,
	SquareOpen,
	SquareClose,
	Colon,
	String,

	// Short values: the pretty writer keeps runs of these on one line inside an array.
	Number,
	True,
	False,
	Null,

	Identifier
};

inline bool EJsonToken_IsShortValue(EJsonToken Token)
{
	return Token == EJsonToken::Number || Token == EJsonToken::True || Token == EJsonToken::False || Token == EJsonToken::Null;
}

enum class EJsonNotation
{
	ObjectStart,
	ObjectEnd,
	ArrayStart,
	ArrayEnd,
	Boolean,
	String,
	Number,
	Null,
	Error
};
