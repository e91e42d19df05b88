// Between JSON text and the FJsonObject / FJsonValue tree.
#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonWriter.h"

class FJsonSerializer
{
public:
	/**
	 * Unlike the engine, a failed read always leaves the output empty (reset or emptied), so that a
	 * caller can never pick up half a document or a stale one.
	 */
	template <class CharType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, TSharedPtr<FJsonObject>& OutObject)
	{
		TSharedPtr<FJsonValue> Root;
		if (!Reader->ReadRoot(EJson::Object, Root))
		{
			OutObject.Reset();
			return false;
		}
		OutObject = Root->AsObject();
		return true;
	}

	template <class CharType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray)
	{
		TSharedPtr<FJsonValue> Root;
		if (!Reader->ReadRoot(EJson::Array, Root))
		{
			OutArray.Empty();
			return false;
		}
		OutArray = Root->AsArray();
		return true;
	}

	template <class CharType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, TSharedPtr<FJsonValue>& OutValue)
	{
		return Reader->ReadRoot(EJson::None, OutValue);
	}

	template <class CharType, class PrintPolicy>
	static bool Serialize(const TSharedRef<FJsonObject>& Object, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer, bool bCloseWriter = true)
	{
		WriteObject(*Object, nullptr, *Writer);
		return Finish(*Writer, bCloseWriter);
	}

	/** An invalid object writes nothing and fails. */
	template <class CharType, class PrintPolicy>
	static bool Serialize(const TSharedPtr<FJsonObject>& Object, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer, bool bCloseWriter = true)
	{
		if (!Object.IsValid())
		{
			return false;
		}
		return Serialize(Object.ToSharedRef(), Writer, bCloseWriter);
	}

	template <class CharType, class PrintPolicy>
	static bool Serialize(const TArray<TSharedPtr<FJsonValue>>& Array, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer, bool bCloseWriter = true)
	{
		WriteArray(Array, nullptr, *Writer);
		return Finish(*Writer, bCloseWriter);
	}

	/** An empty Identifier writes the bare value, as the root of the document or as an array element. */
	template <class CharType, class PrintPolicy>
	static bool Serialize(const TSharedPtr<FJsonValue>& Value, const FString& Identifier, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer, bool bCloseWriter = true)
	{
		WriteValue(Value, Identifier.IsEmpty() ? nullptr : &Identifier, *Writer);
		return Finish(*Writer, bCloseWriter);
	}

private:
	template <class WriterType>
	static bool Finish(WriterType& Writer, bool bCloseWriter)
	{
		return bCloseWriter ? Writer.Close() : true;
	}

	template <class WriterType>
	static void WriteObject(const FJsonObject& Object, const FString* Identifier, WriterType& Writer)
	{
		if (Identifier != nullptr)
		{
			Writer.WriteObjectStart(*Identifier);
		}
		else
		{
			Writer.WriteObjectStart();
		}
		for (const auto& Pair : Object.Values)
		{
			WriteValue(Pair.Value, &Pair.Key, Writer);
		}
		Writer.WriteObjectEnd();
	}

	template <class WriterType>
	static void WriteArray(const TArray<TSharedPtr<FJsonValue>>& Array, const FString* Identifier, WriterType& Writer)
	{
		if (Identifier != nullptr)
		{
			Writer.WriteArrayStart(*Identifier);
		}
		else
		{
			Writer.WriteArrayStart();
		}
		for (const TSharedPtr<FJsonValue>& Element : Array)
		{
			WriteValue(Element, nullptr, Writer);
		}
		Writer.WriteArrayEnd();
	}

	/** An invalid pointer, or a value of no kind, is written as null so that the text stays well formed. */
	template <class WriterType>
	static void WriteValue(const TSharedPtr<FJsonValue>& Value, const FString* Identifier, WriterType& Writer)
	{
		const EJson Type = Value.IsValid() ? Value->Type : EJson::Null;
		switch (Type)
		{
		case EJson::String:
			WriteScalar(Value->AsString(), Identifier, Writer);
			break;
		case EJson::Number:
			WriteScalar(Value->AsNumber(), Identifier, Writer);
			break;
		case EJson::Boolean:
			WriteScalar(Value->AsBool(), Identifier, Writer);
			break;
		case EJson::Array:
			WriteArray(Value->AsArray(), Identifier, Writer);
			break;
		case EJson::Object:
			if (const TSharedPtr<FJsonObject>& Object = Value->AsObject(); Object.IsValid())
			{
				WriteObject(*Object, Identifier, Writer);
				break;
			}
			[[fallthrough]];
		default:
			if (Identifier != nullptr)
			{
				Writer.WriteNull(*Identifier);
			}
			else
			{
				Writer.WriteNull();
			}
			break;
		}
	}

	template <class ScalarType, class WriterType>
	static void WriteScalar(const ScalarType& Scalar, const FString* Identifier, WriterType& Writer)
	{
		if (Identifier != nullptr)
		{
			Writer.WriteValue(*Identifier, Scalar);
		}
		else
		{
			Writer.WriteValue(Scalar);
		}
	}
};
