// Macros exec thunks use to read their parameters from the frame and to reach their object.
#pragma once

#include "UObject/Stack.h"

#define P_GET_PROPERTY(PropertyType, ParamName) \
	PropertyType::TCppType ParamName = PropertyType::GetDefaultPropertyValue(); \
	Stack.StepCompiledIn<PropertyType>(&ParamName);

#define P_GET_PROPERTY_REF(PropertyType, ParamName) \
	PropertyType::TCppType ParamName##Temp = PropertyType::GetDefaultPropertyValue(); \
	PropertyType::TCppType& ParamName = Stack.StepCompiledInRef<PropertyType, PropertyType::TCppType>(&ParamName##Temp);

#define P_GET_UBOOL(ParamName) \
	uint32 ParamName##32 = 0; \
	bool ParamName = false; \
	Stack.StepCompiledIn<FBoolProperty>(&ParamName##32); \
	ParamName = !!ParamName##32;

#define P_GET_UBOOL_REF(ParamName) \
	bool ParamName##Temp = false; \
	bool& ParamName = Stack.StepCompiledInRef<FBoolProperty, bool>(&ParamName##Temp);

#define P_GET_STRUCT(StructType, ParamName) \
	StructType ParamName; \
	Stack.StepCompiledIn<FStructProperty>(&ParamName);

#define P_GET_STRUCT_REF(StructType, ParamName) \
	StructType ParamName##Temp; \
	StructType& ParamName = Stack.StepCompiledInRef<FStructProperty, StructType>(&ParamName##Temp);

#define P_GET_OBJECT(ObjectType, ParamName) \
	ObjectType* ParamName = nullptr; \
	Stack.StepCompiledIn<FObjectPropertyBase>(&ParamName);

#define P_GET_OBJECT_REF(ObjectType, ParamName) \
	ObjectType* ParamName##Temp = nullptr; \
	ObjectType*& ParamName = Stack.StepCompiledInRef<FObjectPropertyBase, ObjectType*>(&ParamName##Temp);

#define P_GET_TARRAY(ElementType, ParamName) \
	TArray<ElementType> ParamName; \
	Stack.StepCompiledIn<FArrayProperty>(&ParamName);

#define P_GET_TARRAY_REF(ElementType, ParamName) \
	TArray<ElementType> ParamName##Temp; \
	TArray<ElementType>& ParamName = Stack.StepCompiledInRef<FArrayProperty, TArray<ElementType>>(&ParamName##Temp);

#define P_GET_ENUM(EnumType, ParamName) \
	EnumType ParamName = (EnumType)0; \
	Stack.StepCompiledIn<FEnumProperty>(&ParamName);

#define P_GET_ENUM_REF(EnumType, ParamName) \
	EnumType ParamName##Temp = (EnumType)0; \
	EnumType& ParamName = Stack.StepCompiledInRef<FEnumProperty, EnumType>(&ParamName##Temp);

#define P_FINISH Stack.Code += !!Stack.Code;

#define P_THIS_OBJECT (Context)
#define P_THIS_CAST(ClassType) ((ClassType*)P_THIS_OBJECT)
#define P_THIS P_THIS_CAST(ThisClass)

#define P_NATIVE_BEGIN {
#define P_NATIVE_END }
