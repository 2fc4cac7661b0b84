// SPDX-License-Identifier: MIT
/** Takes over what the header tool wrote about types. */
#include "UObject/GeneratedCppIncludes.h"

namespace Host
{
namespace
{

void AddMetadata(TMap<FName, FString>& Map, FMetadataList Entries)
{
	for (const FMetadataEntry& Entry : Entries)
	{
		Map.Add(FName(Entry.Key), FString(Entry.Value));
	}
}

} // namespace

void FTypeBuilder::Metadata(FMetadataList Entries)
{
	AddMetadata(Type.MetaDataMap, Entries);
}

void FTypeBuilder::References(void (*Function)(UObject*, FReferenceCollector&))
{
	static_cast<const UClass&>(Type).ReferencesFunction = Function;
}

void FTypeBuilder::Bit(const char* Name, FBoolProperty::FBitGetter Getter, FBoolProperty::FBitSetter Setter,
	EPropertyFlags Flags, FMetadataList Metadata)
{
	Add(new FBoolProperty(Getter, Setter), Name, 0, Flags, Metadata);
}

void FTypeBuilder::Add(
	FProperty* Property, const char* Name, SIZE_T Offset, EPropertyFlags Flags, FMetadataList Metadata)
{
	Property->NamePrivate = FName(Name);
	Property->Owner = const_cast<UStruct*>(&Type);
	Property->Offset_Internal = static_cast<int32>(Offset);
	Property->PropertyFlags |= Flags;
	AddMetadata(Property->MetaDataMap, Metadata);
	Property->LinkParts();
	(Last ? Last->Next : Type.ChildProperties) = Property;
	Last = Property;
}

void FEnumBuilder::Metadata(FMetadataList Entries)
{
	AddMetadata(Enum.MetaDataMap, Entries);
}

void FEnumBuilder::Value(const char* Name, int64 Value, FMetadataList Metadata)
{
	UEnum::FEntry& Entry = Enum.Entries.AddDefaulted_GetRef();
	Entry.Name = FString(Name);
	Entry.Value = Value;
	AddMetadata(Entry.Metadata, Metadata);
}

} // namespace Host
