// What generated .gen.cpp files build reflection with. The property factory lets the compiler pick
// each property's kind from the member's C++ type; the header tool only supplies what the type
// cannot say (the class behind a forward-declared object type, flags, metadata).
#pragma once

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <initializer_list>
#include <type_traits>
#include <utility>

namespace UECodeGen_Private
{
	typedef UFunction* (*FSignatureFn)();

	enum class EObjectHandleKind
	{
		None,
		Strong,
		StrongPtr,
		Weak,
		Soft,
		Lazy,
		SubclassOf
	};

	template<typename T>
	struct TObjectHandleTraits
	{
		static constexpr EObjectHandleKind Kind = EObjectHandleKind::None;
	};
	template<typename U>
	struct TObjectHandleTraits<U*>
	{
		static constexpr auto Kind = EObjectHandleKind::Strong;
		using FObjectType = U;
	};
	template<typename U>
	struct TObjectHandleTraits<TObjectPtr<U>>
	{
		static constexpr auto Kind = EObjectHandleKind::StrongPtr;
		using FObjectType = U;
	};
	template<typename U>
	struct TObjectHandleTraits<TWeakObjectPtr<U>>
	{
		static constexpr auto Kind = EObjectHandleKind::Weak;
		using FObjectType = U;
	};
	template<typename U>
	struct TObjectHandleTraits<TSoftObjectPtr<U>>
	{
		static constexpr auto Kind = EObjectHandleKind::Soft;
		using FObjectType = U;
	};
	template<typename U>
	struct TObjectHandleTraits<TLazyObjectPtr<U>>
	{
		static constexpr auto Kind = EObjectHandleKind::Lazy;
		using FObjectType = U;
	};
	template<typename U>
	struct TObjectHandleTraits<TSubclassOf<U>>
	{
		static constexpr auto Kind = EObjectHandleKind::SubclassOf;
		using FObjectType = U;
	};

	template<typename T>
	struct TIsTArray
	{
		static constexpr bool Value = false;
	};
	template<typename E, typename A>
	struct TIsTArray<TArray<E, A>>
	{
		static constexpr bool Value = true;
		using FElementType = E;
	};

	template<typename T>
	UClass* ResolveClass(FStaticClassFn ClassFn)
	{
		if (ClassFn)
		{
			return ClassFn();
		}
		if constexpr (requires { T::StaticClass(); })
		{
			return T::StaticClass();
		}
		else
		{
			checkf(false, "The class of an object property must be known");
			return nullptr;
		}
	}

	/** Makes the property for one value of type T (fixed arrays are handled by MakeProperty). */
	template<typename T>
	FProperty* MakeElementProperty(FFieldVariant Owner, const TCHAR* Name, EPropertyFlags Flags, int32 Offset, FStaticClassFn ClassFn, FSignatureFn SignatureFn)
	{
		const FName PropertyName(Name);
		const EObjectFlags ObjectFlags = EObjectFlags(RF_Public | RF_Transient | RF_MarkAsNative);
		using FHandle = TObjectHandleTraits<T>;
		if constexpr (std::is_same_v<T, bool>)
		{
			return new FBoolProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, int8>)
		{
			return new FInt8Property(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, int16>)
		{
			return new FInt16Property(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, int32>)
		{
			return new FIntProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, int64>)
		{
			return new FInt64Property(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, uint8>)
		{
			return new FByteProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, uint16>)
		{
			return new FUInt16Property(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, uint32>)
		{
			return new FUInt32Property(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, uint64>)
		{
			return new FUInt64Property(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, float>)
		{
			return new FFloatProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, double>)
		{
			return new FDoubleProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, FString>)
		{
			return new FStrProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, FName>)
		{
			return new FNameProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_same_v<T, FText>)
		{
			return new FTextProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
		}
		else if constexpr (std::is_enum_v<T>)
		{
			static_assert(TIsUEnumClass<T>::Value, "An enum property needs a UENUM");
			FEnumProperty* Property = new FEnumProperty(Owner, PropertyName, ObjectFlags, Offset, Flags, StaticEnum<T>());
			Property->AddCppProperty(MakeElementProperty<std::underlying_type_t<T>>(Property, TEXT("UnderlyingType"), CPF_None, 0, nullptr, nullptr));
			return Property;
		}
		else if constexpr (TIsTArray<T>::Value)
		{
			FArrayProperty* Property = new FArrayProperty(Owner, PropertyName, ObjectFlags, Offset, Flags);
			const EPropertyFlags InnerFlags = EPropertyFlags(Flags & (CPF_InstancedReference | CPF_ExportObject | CPF_PersistentInstance | CPF_ContainsInstancedReference | CPF_TObjectPtr | CPF_UObjectWrapper));
			Property->AddCppProperty(MakeElementProperty<typename TIsTArray<T>::FElementType>(Property, Name, InnerFlags, 0, ClassFn, SignatureFn));
			return Property;
		}
		else if constexpr (FHandle::Kind == EObjectHandleKind::Strong || FHandle::Kind == EObjectHandleKind::StrongPtr)
		{
			using U = typename FHandle::FObjectType;
			const EPropertyFlags PointerFlags = FHandle::Kind == EObjectHandleKind::StrongPtr ? EPropertyFlags(Flags | CPF_TObjectPtrWrapper) : Flags;
			if constexpr (std::is_same_v<U, UClass>)
			{
				return new FClassProperty(Owner, PropertyName, ObjectFlags, Offset, PointerFlags, UObject::StaticClass());
			}
			else
			{
				return new FObjectProperty(Owner, PropertyName, ObjectFlags, Offset, PointerFlags, ResolveClass<U>(ClassFn));
			}
		}
		else if constexpr (FHandle::Kind == EObjectHandleKind::SubclassOf)
		{
			return new FClassProperty(Owner, PropertyName, ObjectFlags, Offset, EPropertyFlags(Flags | CPF_UObjectWrapper), ResolveClass<typename FHandle::FObjectType>(ClassFn));
		}
		else if constexpr (FHandle::Kind == EObjectHandleKind::Weak)
		{
			return new FWeakObjectProperty(Owner, PropertyName, ObjectFlags, Offset, EPropertyFlags(Flags | CPF_UObjectWrapper), ResolveClass<typename FHandle::FObjectType>(ClassFn));
		}
		else if constexpr (FHandle::Kind == EObjectHandleKind::Soft)
		{
			return new FSoftObjectProperty(Owner, PropertyName, ObjectFlags, Offset, EPropertyFlags(Flags | CPF_UObjectWrapper), ResolveClass<typename FHandle::FObjectType>(ClassFn));
		}
		else if constexpr (FHandle::Kind == EObjectHandleKind::Lazy)
		{
			return new FLazyObjectProperty(Owner, PropertyName, ObjectFlags, Offset, EPropertyFlags(Flags | CPF_UObjectWrapper), ResolveClass<typename FHandle::FObjectType>(ClassFn));
		}
		else if constexpr (requires { T::bIsMulticastDynamicDelegate; })
		{
			return new FMulticastInlineDelegateProperty(Owner, PropertyName, ObjectFlags, Offset, Flags, SignatureFn ? SignatureFn() : T::StaticSignatureFunction());
		}
		else if constexpr (requires { T::bIsSingleDynamicDelegate; })
		{
			return new FDelegateProperty(Owner, PropertyName, ObjectFlags, Offset, Flags, SignatureFn ? SignatureFn() : T::StaticSignatureFunction());
		}
		else if constexpr (requires { T::StaticStruct(); })
		{
			return new FStructProperty(Owner, PropertyName, ObjectFlags, Offset, Flags, T::StaticStruct());
		}
		else
		{
			return new FStructProperty(Owner, PropertyName, ObjectFlags, Offset, Flags, TBaseStructure<T>::Get());
		}
	}

	/** The property of a member or parameter of type T; a C array T[N] becomes ArrayDim N. */
	template<typename T>
	FProperty* MakeProperty(FFieldVariant Owner, const TCHAR* Name, EPropertyFlags Flags, int32 Offset, FStaticClassFn ClassFn = nullptr, FSignatureFn SignatureFn = nullptr)
	{
		using FElement = std::remove_cv_t<std::remove_all_extents_t<T>>;
		FProperty* Property = MakeElementProperty<FElement>(Owner, Name, Flags, Offset, ClassFn, SignatureFn);
		if constexpr (std::is_array_v<T>)
		{
			Property->ArrayDim = int32(sizeof(T) / sizeof(FElement));
		}
		return Property;
	}

	/** Adds a property to a struct, class or function, after the ones already there. */
	template<typename T>
	FProperty* AddProperty(UStruct* Struct, const TCHAR* Name, EPropertyFlags Flags, int32 Offset, FStaticClassFn ClassFn = nullptr, FSignatureFn SignatureFn = nullptr)
	{
		FProperty* Property = MakeProperty<T>(Struct, Name, Flags, Offset, ClassFn, SignatureFn);
		Struct->AddCppProperty(Property);
		return Property;
	}

	COREUOBJECT_API UPackage* ConstructUPackage(const TCHAR* Name);
	COREUOBJECT_API UScriptStruct* ConstructUScriptStruct(UObject* Outer, const TCHAR* Name, UScriptStruct* Super, ICppStructOps* StructOps, EStructFlags Flags);
	COREUOBJECT_API UFunction* ConstructUFunction(UObject* Outer, const TCHAR* Name, UFunction* Super, EFunctionFlags Flags, int32 ParmsSize, bool bDelegateSignature);
	COREUOBJECT_API UEnum* ConstructUEnum(UObject* Outer, const TCHAR* Name, const TCHAR* CppType, ECppForm::Type CppForm, std::initializer_list<std::pair<const TCHAR*, int64>> Entries);

	/** Finishes a class once its properties and functions are added. */
	COREUOBJECT_API void FinishClass(UClass* Class);
	/** Adds a function to its class and binds the class's registered thunk to it. */
	COREUOBJECT_API void AddFunction(UClass* Class, UFunction* Function);
}

/** Runs a type's construction when its module is loaded. */
struct FRegisterCompiledInInfo
{
	template<typename FnType>
	explicit FRegisterCompiledInInfo(FnType Construct)
	{
		Construct();
	}
};
