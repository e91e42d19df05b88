// Core types the engine reflects without a header of their own (its NoExportTypes): their structs
// are described here from the real C++ members, so UPROPERTYs of these types work.
#include "UObject/GeneratedCodeHelpers.h"

#include "Math/Color.h"
#include "Math/Vector2D.h"
#if __has_include("Misc/Guid.h")
#include "Misc/Guid.h"
#define WITH_CORE_GUID 1
#else
#define WITH_CORE_GUID 0
#endif
#include "UObject/SoftObjectPath.h"

#include <cstddef>

namespace
{
	UPackage* CoreUObjectPackage()
	{
		return UECodeGen_Private::ConstructUPackage(TEXT("/Script/CoreUObject"));
	}

	template<typename T>
	UScriptStruct* MakeCoreStruct(const TCHAR* Name, void (*AddProperties)(UScriptStruct*))
	{
		UScriptStruct* Struct = UECodeGen_Private::ConstructUScriptStruct(CoreUObjectPackage(), Name, nullptr, new UScriptStruct::TCppStructOps<T>(), EStructFlags(STRUCT_Native | STRUCT_NoExport | STRUCT_Atomic | STRUCT_Immutable));
		Struct->SetMetaData(TEXT("BlueprintType"), TEXT("true"));
		AddProperties(Struct);
		Struct->Link();
		return Struct;
	}
}

#define CORE_STRUCT_PROPERTY(Type, Member) \
	UECodeGen_Private::AddProperty<decltype(Type::Member)>(Struct, TEXT(#Member), EPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_SaveGame | CPF_IsPlainOldData | CPF_NativeAccessSpecifierPublic), int32(offsetof(Type, Member)))

UScriptStruct* TBaseStructure<FLinearColor>::Get()
{
	static UScriptStruct* Struct = MakeCoreStruct<FLinearColor>(TEXT("LinearColor"), [](UScriptStruct* Struct)
	{
		CORE_STRUCT_PROPERTY(FLinearColor, R);
		CORE_STRUCT_PROPERTY(FLinearColor, G);
		CORE_STRUCT_PROPERTY(FLinearColor, B);
		CORE_STRUCT_PROPERTY(FLinearColor, A);
	});
	return Struct;
}

UScriptStruct* TBaseStructure<FColor>::Get()
{
	static UScriptStruct* Struct = MakeCoreStruct<FColor>(TEXT("Color"), [](UScriptStruct* Struct)
	{
		CORE_STRUCT_PROPERTY(FColor, B);
		CORE_STRUCT_PROPERTY(FColor, G);
		CORE_STRUCT_PROPERTY(FColor, R);
		CORE_STRUCT_PROPERTY(FColor, A);
	});
	return Struct;
}

UScriptStruct* TBaseStructure<FVector2D>::Get()
{
	static UScriptStruct* Struct = MakeCoreStruct<FVector2D>(TEXT("Vector2D"), [](UScriptStruct* Struct)
	{
		CORE_STRUCT_PROPERTY(FVector2D, X);
		CORE_STRUCT_PROPERTY(FVector2D, Y);
	});
	return Struct;
}

#if WITH_CORE_GUID
UScriptStruct* TBaseStructure<FGuid>::Get()
{
	static UScriptStruct* Struct = MakeCoreStruct<FGuid>(TEXT("Guid"), [](UScriptStruct* Struct)
	{
		CORE_STRUCT_PROPERTY(FGuid, A);
		CORE_STRUCT_PROPERTY(FGuid, B);
		CORE_STRUCT_PROPERTY(FGuid, C);
		CORE_STRUCT_PROPERTY(FGuid, D);
	});
	return Struct;
}
#endif

UScriptStruct* TBaseStructure<FSoftObjectPath>::Get()
{
	// Its members are private; it is read and written through ImportTextItem/ExportTextItem.
	static UScriptStruct* Struct = MakeCoreStruct<FSoftObjectPath>(TEXT("SoftObjectPath"), [](UScriptStruct*) {});
	return Struct;
}
