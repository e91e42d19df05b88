#include "Headless/ObjectConfig.h"

#include "Misc/ConfigCacheIni.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogObjectConfig, Log, All);

namespace
{
	void ImportConfigValue(UObject* Object, const FProperty* Property, const FString& Value, void* Data, const FString& Section, const FString& Key)
	{
		if (Property->ImportText_Direct(*Value, Data, Object, PPF_None) == nullptr)
		{
			UE_LOG(LogObjectConfig, Warning, TEXT("[%s] %s=%s: not a valid %s; %s keeps its value"),
				*Section, *Key, *Value, *Property->GetCPPType(), *Property->GetName());
		}
	}

	void LoadArrayProperty(UObject* Object, const FArrayProperty* Property, const FString& Section, const FString& Filename)
	{
		const FString Key = Property->GetName();
		TArray<FString> Values;
		// As in the engine, an array with no values in the file keeps the ones the class gave it.
		if (GConfig->GetArray(*Section, *Key, Values, Filename) == 0)
		{
			return;
		}
		FScriptArrayHelper Helper(Property, Property->ContainerPtrToValuePtr<void>(Object));
		Helper.EmptyValues();
		for (const FString& Value : Values)
		{
			const int32 Index = Helper.AddValue();
			if (Property->Inner->ImportText_Direct(*Value, Helper.GetRawPtr(Index), Object, PPF_None) == nullptr)
			{
				UE_LOG(LogObjectConfig, Warning, TEXT("[%s] %s=%s: not a valid %s; the element is skipped"),
					*Section, *Key, *Value, *Property->Inner->GetCPPType());
				Helper.RemoveValues(Index);
			}
		}
	}
}

namespace UE::Headless
{
	FString GetConfigFilename(FName ClassConfigName)
	{
		const FString Name = ClassConfigName.ToString();
		for (const FString* Global : { &GEngineIni, &GGameIni, &GInputIni, &GGameUserSettingsIni })
		{
			if (Name.Equals(*Global, ESearchCase::IgnoreCase))
			{
				return *Global;
			}
		}
		return Name;
	}

	void LoadObjectConfig(UObject* Object)
	{
		check(Object != nullptr);
		UClass* Class = Object->GetClass();
		const FString Filename = GetConfigFilename(Class->ClassConfigName);
		for (TFieldIterator<FProperty> It(Class); It; ++It)
		{
			const FProperty* Property = *It;
			if (!Property->HasAnyPropertyFlags(CPF_Config))
			{
				continue;
			}
			const UClass* SectionClass = Property->HasAnyPropertyFlags(CPF_GlobalConfig) ? Property->GetOwnerClass() : Class;
			const FString Section = SectionClass->GetPathName();

			if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
			{
				LoadArrayProperty(Object, ArrayProperty, Section, Filename);
				continue;
			}
			for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
			{
				const FString Key = Property->ArrayDim == 1
					? Property->GetName()
					: FString::Printf(TEXT("%s[%d]"), *Property->GetName(), Index);
				FString Value;
				if (GConfig->GetString(*Section, *Key, Value, Filename))
				{
					ImportConfigValue(Object, Property, Value, Property->ContainerPtrToValuePtr<void>(Object, Index), Section, Key);
				}
			}
		}
	}
}
