#include "DataTableJSON.h"

#include "Dom/JsonObject.h"
#include "Engine/DataTable.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

namespace
{
	FString DescribeJson(const FJsonValue& Value)
	{
		switch (Value.Type)
		{
		case EJson::String:
			return TEXT("a string");
		case EJson::Number:
			return TEXT("a number");
		case EJson::Boolean:
			return TEXT("a boolean");
		case EJson::Array:
			return TEXT("an array");
		case EJson::Object:
			return TEXT("an object");
		default:
			return TEXT("null");
		}
	}
	// The quoted arguments of Macro("a", "b"), backslash escapes resolved; false unless the whole
	// text is one such call.
	bool ReadMacroArguments(const FString& Text, const TCHAR* Macro, TArray<FString>& OutArguments)
	{
		OutArguments.Reset();
		if (!Text.StartsWith(Macro, ESearchCase::CaseSensitive))
		{
			return false;
		}
		int32 Index = FString(Macro).Len();
		auto SkipSpaces = [&Text, &Index]()
		{
			while (Index < Text.Len() && FChar::IsWhitespace(Text[Index]))
			{
				++Index;
			}
		};
		SkipSpaces();
		if (Index >= Text.Len() || Text[Index] != TEXT('('))
		{
			return false;
		}
		++Index;
		for (;;)
		{
			SkipSpaces();
			if (Index >= Text.Len() || Text[Index] != TEXT('"'))
			{
				return false;
			}
			++Index;
			FString Argument;
			bool bClosed = false;
			while (Index < Text.Len() && !bClosed)
			{
				const TCHAR Char = Text[Index++];
				if (Char == TEXT('\\') && Index < Text.Len())
				{
					Argument.AppendChar(Text[Index++]);
				}
				else if (Char == TEXT('"'))
				{
					bClosed = true;
				}
				else
				{
					Argument.AppendChar(Char);
				}
			}
			if (!bClosed)
			{
				return false;
			}
			OutArguments.Add(MoveTemp(Argument));
			SkipSpaces();
			if (Index < Text.Len() && Text[Index] == TEXT(','))
			{
				++Index;
				continue;
			}
			if (Index < Text.Len() && Text[Index] == TEXT(')'))
			{
				++Index;
				SkipSpaces();
				return Index == Text.Len();
			}
			return false;
		}
	}

	// The engine exports a localisable text as NSLOCTEXT("Namespace", "Key", "Source") and a
	// culture-invariant one as INVTEXT("Source"); any other string is the text itself.
	FText TextFromExport(const FString& Value)
	{
		const FString Trimmed = Value.TrimStartAndEnd();
		TArray<FString> Arguments;
		if (ReadMacroArguments(Trimmed, TEXT("NSLOCTEXT"), Arguments) && Arguments.Num() == 3)
		{
			return FText::AsLocalizable_Advanced(Arguments[0], Arguments[1], MoveTemp(Arguments[2]));
		}
		if (ReadMacroArguments(Trimmed, TEXT("INVTEXT"), Arguments) && Arguments.Num() == 1)
		{
			return FText::AsCultureInvariant(MoveTemp(Arguments[0]));
		}
		return FText::FromString(Value);
	}
}

FDataTableImporterJSON::FDataTableImporterJSON(UDataTable& InDataTable, TArray<FString>& OutProblems)
	: DataTable(InDataTable)
	, Problems(OutProblems)
{
}

bool FDataTableImporterJSON::ReadTable(const FString& JsonText)
{
	TArray<TSharedPtr<FJsonValue>> Rows;
	const TSharedRef<TJsonReader<TCHAR>> Reader = TJsonReaderFactory<TCHAR>::Create(JsonText);
	if (!FJsonSerializer::Deserialize(Reader, Rows))
	{
		DataTable.EmptyTable();
		Problems.Add(FString::Printf(TEXT("Failed to parse the JSON data. Error: %s"), *Reader->GetErrorMessage()));
		return false;
	}
	return ReadTable(Rows);
}

bool FDataTableImporterJSON::ReadTable(const TArray<TSharedPtr<FJsonValue>>& Rows)
{
	DataTable.EmptyTable();
	for (int32 RowIndex = 0; RowIndex < Rows.Num(); ++RowIndex)
	{
		const TSharedPtr<FJsonObject>* RowObject = nullptr;
		if (!Rows[RowIndex].IsValid() || !Rows[RowIndex]->TryGetObject(RowObject) || !RowObject->IsValid())
		{
			Problems.Add(FString::Printf(TEXT("Row '%d' is not a JSON object."), RowIndex));
			continue;
		}
		ReadRow(**RowObject, RowIndex);
	}

	const bool bImportRows = DataTable.RowStruct->IsChildOf(FTableRowBase::StaticStruct());
	for (const TPair<FName, uint8*>& Pair : DataTable.RowMap)
	{
		if (bImportRows)
		{
			reinterpret_cast<FTableRowBase*>(Pair.Value)->OnPostDataImport(&DataTable, Pair.Key, Problems);
		}
	}
	return true;
}

void FDataTableImporterJSON::ReadRow(const FJsonObject& RowObject, int32 RowIndex)
{
	FString RowNameText;
	if (!RowObject.TryGetStringField(TEXT("Name"), RowNameText) || RowNameText.IsEmpty())
	{
		Problems.Add(FString::Printf(TEXT("Row '%d' is missing a name."), RowIndex));
		return;
	}
	const FName RowName(*RowNameText);
	if (RowName.IsNone())
	{
		Problems.Add(FString::Printf(TEXT("Row '%d' is named 'None', which no row may be."), RowIndex));
		return;
	}
	if (DataTable.RowMap.Contains(RowName))
	{
		Problems.Add(FString::Printf(TEXT("Duplicate row name '%s'; the later row replaces the earlier."), *RowNameText));
	}
	uint8* RowData = DataTable.AddDefaultRow(RowName);
	ReadStruct(RowObject, DataTable.RowStruct, RowData, FString::Printf(TEXT("Row '%s'"), *RowNameText));
}

void FDataTableImporterJSON::ReadStruct(const FJsonObject& Object, const UStruct* Struct, uint8* Data, const FString& Where)
{
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		const FProperty* Property = *It;
		const FString PropertyName = Property->GetName();
		const FString PropertyWhere = FString::Printf(TEXT("%s, property '%s'"), *Where, *PropertyName);
		const TSharedPtr<FJsonValue> Field = Object.TryGetField(PropertyName);
		if (!Field.IsValid())
		{
			Problems.Add(FString::Printf(TEXT("%s is missing an entry for '%s'."), *Where, *PropertyName));
			continue;
		}
		if (Property->ArrayDim == 1)
		{
			ReadValue(*Field, Property, Property->ContainerPtrToValuePtr<void>(Data), PropertyWhere);
			continue;
		}
		// A C-style array is written as a JSON array of its elements.
		const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
		if (!Field->TryGetArray(Elements))
		{
			Problems.Add(FString::Printf(TEXT("%s: expected an array, found %s."), *PropertyWhere, *DescribeJson(*Field)));
			continue;
		}
		for (int32 Index = 0; Index < FMath::Min(Elements->Num(), Property->ArrayDim); ++Index)
		{
			ReadValue(*(*Elements)[Index], Property, Property->ContainerPtrToValuePtr<void>(Data, Index), PropertyWhere);
		}
	}

	for (const TPair<FString, TSharedPtr<FJsonValue>>& Pair : Object.Values)
	{
		if (Struct == DataTable.RowStruct && Pair.Key.Equals(TEXT("Name"), ESearchCase::IgnoreCase))
		{
			continue;
		}
		if (Struct->FindPropertyByName(FName(*Pair.Key)) == nullptr)
		{
			Problems.Add(FString::Printf(TEXT("%s has an entry '%s' that is not a property of '%s'."), *Where, *Pair.Key, *Struct->GetName()));
		}
	}
}

bool FDataTableImporterJSON::ReadValue(const FJsonValue& Value, const FProperty* Property, void* Data, const FString& Where)
{
	FString Text;
	const bool bIsText = Value.Type == EJson::String && Value.TryGetString(Text);

	if (CastField<FStrProperty>(Property))
	{
		if (Value.Type == EJson::Array || Value.Type == EJson::Object || !Value.TryGetString(Text))
		{
			Problems.Add(FString::Printf(TEXT("%s: expected a string, found %s."), *Where, *DescribeJson(Value)));
			return false;
		}
		*static_cast<FString*>(Data) = Text;
		return true;
	}
	if (CastField<FNameProperty>(Property))
	{
		if (Value.Type == EJson::Array || Value.Type == EJson::Object || !Value.TryGetString(Text))
		{
			Problems.Add(FString::Printf(TEXT("%s: expected a name, found %s."), *Where, *DescribeJson(Value)));
			return false;
		}
		*static_cast<FName*>(Data) = FName(*Text);
		return true;
	}
	if (CastField<FTextProperty>(Property))
	{
		if (Value.Type == EJson::Array || Value.Type == EJson::Object || !Value.TryGetString(Text))
		{
			Problems.Add(FString::Printf(TEXT("%s: expected text, found %s."), *Where, *DescribeJson(Value)));
			return false;
		}
		*static_cast<FText*>(Data) = TextFromExport(Text);
		return true;
	}
	if (CastField<FBoolProperty>(Property))
	{
		bool bValue = false;
		if (Value.Type == EJson::Boolean && Value.TryGetBool(bValue))
		{
			*static_cast<bool*>(Data) = bValue;
			return true;
		}
		return bIsText ? ImportFromText(Text, Property, Data, Where) : (Problems.Add(FString::Printf(TEXT("%s: expected a boolean, found %s."), *Where, *DescribeJson(Value))), false);
	}
	if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Property))
	{
		double Number = 0.0;
		if (Value.Type == EJson::Number && Value.TryGetNumber(Number))
		{
			EnumProperty->GetUnderlyingProperty()->SetIntPropertyValue(Data, int64(Number));
			return true;
		}
		return bIsText ? ImportFromText(Text, Property, Data, Where) : (Problems.Add(FString::Printf(TEXT("%s: expected an enum name, found %s."), *Where, *DescribeJson(Value))), false);
	}
	if (const FNumericProperty* NumericProperty = CastField<FNumericProperty>(Property))
	{
		double Number = 0.0;
		if (Value.Type == EJson::Number && Value.TryGetNumber(Number))
		{
			if (NumericProperty->IsFloatingPoint())
			{
				NumericProperty->SetFloatingPointPropertyValue(Data, Number);
			}
			else
			{
				NumericProperty->SetIntPropertyValue(Data, int64(Number));
			}
			return true;
		}
		return bIsText ? ImportFromText(Text, Property, Data, Where) : (Problems.Add(FString::Printf(TEXT("%s: expected a number, found %s."), *Where, *DescribeJson(Value))), false);
	}
	if (CastField<FObjectPropertyBase>(Property))
	{
		if (Value.IsNull())
		{
			return ReadObjectReference(FString(), Property, Data, Where);
		}
		if (!bIsText)
		{
			Problems.Add(FString::Printf(TEXT("%s: expected an object path, found %s."), *Where, *DescribeJson(Value)));
			return false;
		}
		return ReadObjectReference(Text, Property, Data, Where);
	}
	if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
	{
		const TSharedPtr<FJsonObject>* Object = nullptr;
		if (Value.Type == EJson::Object && Value.TryGetObject(Object) && Object->IsValid())
		{
			ReadStruct(**Object, StructProperty->Struct, static_cast<uint8*>(Data), Where);
			return true;
		}
		if (bIsText && StructProperty->Struct == TBaseStructure<FSoftObjectPath>::Get())
		{
			static_cast<FSoftObjectPath*>(Data)->SetPath(Text);
			return true;
		}
		return bIsText ? ImportFromText(Text, Property, Data, Where) : (Problems.Add(FString::Printf(TEXT("%s: expected an object, found %s."), *Where, *DescribeJson(Value))), false);
	}
	if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
	{
		const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
		if (Value.Type == EJson::Array && Value.TryGetArray(Elements))
		{
			FScriptArrayHelper Helper(ArrayProperty, Data);
			Helper.EmptyValues();
			for (int32 Index = 0; Index < Elements->Num(); ++Index)
			{
				const int32 NewIndex = Helper.AddValue();
				const FString ElementWhere = FString::Printf(TEXT("%s[%d]"), *Where, Index);
				if (!(*Elements)[Index].IsValid() || !ReadValue(*(*Elements)[Index], ArrayProperty->Inner, Helper.GetRawPtr(NewIndex), ElementWhere))
				{
					Helper.RemoveValues(NewIndex);
				}
			}
			return true;
		}
		return bIsText ? ImportFromText(Text, Property, Data, Where) : (Problems.Add(FString::Printf(TEXT("%s: expected an array, found %s."), *Where, *DescribeJson(Value))), false);
	}

	Problems.Add(FString::Printf(TEXT("%s: properties of type '%s' cannot be read from JSON."), *Where, *Property->GetCPPType()));
	return false;
}

bool FDataTableImporterJSON::ReadObjectReference(const FString& Text, const FProperty* Property, void* Data, const FString& Where)
{
	const FObjectPropertyBase* ObjectProperty = CastField<FObjectPropertyBase>(Property);
	const FSoftObjectPath Path(Text);
	if (Path.IsNull())
	{
		ObjectProperty->SetObjectPropertyValue(Data, nullptr);
		return true;
	}
	if (CastField<FSoftObjectProperty>(Property))
	{
		*static_cast<FSoftObjectPtr*>(Data) = FSoftObjectPtr(Path);
		return true;
	}
	if (CastField<FObjectProperty>(Property) == nullptr)
	{
		return ImportFromText(Text, Property, Data, Where);
	}

	// A hard reference needs its object now, as the engine loads it while importing.
	UObject* Object = Path.TryLoad();
	if (Object == nullptr)
	{
		Problems.Add(FString::Printf(TEXT("%s: '%s' names no object that could be loaded."), *Where, *Path.ToString()));
		ObjectProperty->SetObjectPropertyValue(Data, nullptr);
		return false;
	}
	if (ObjectProperty->PropertyClass && !Object->IsA(ObjectProperty->PropertyClass))
	{
		Problems.Add(FString::Printf(TEXT("%s: '%s' is a %s, not a %s."), *Where, *Path.ToString(), *Object->GetClass()->GetName(), *ObjectProperty->PropertyClass->GetName()));
		ObjectProperty->SetObjectPropertyValue(Data, nullptr);
		return false;
	}
	ObjectProperty->SetObjectPropertyValue(Data, Object);
	return true;
}

bool FDataTableImporterJSON::ImportFromText(const FString& Text, const FProperty* Property, void* Data, const FString& Where)
{
	if (Property->ImportText_Direct(*Text, Data, &DataTable, PPF_None) == nullptr)
	{
		Problems.Add(FString::Printf(TEXT("%s: '%s' is not a valid %s."), *Where, *Text, *Property->GetCPPType()));
		return false;
	}
	return true;
}
