// SPDX-License-Identifier: MIT
#include "UObject/ObjectCopy.h"

#include "Host/NativeCopy.h"
#include "UObject/GCObject.h"
#include "UObject/ObjectAccess.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <unordered_map>
#include <vector>

namespace Host
{
namespace
{

struct FCopyPair
{
	UObject* Source;
	UObject* Target;
};

/** Sources and their targets, outers before what is inside of them. */
struct FCopySet
{
	std::vector<FCopyPair> Pairs;
	std::unordered_map<const UObject*, UObject*> TargetOf;

	void Add(UObject* Source, UObject* Target)
	{
		Pairs.push_back({Source, Target});
		TargetOf[Source] = Target;
	}
};

/** Turns references to sources into references to their targets. */
class FRedirector : public FReferenceCollector
{
public:
	explicit FRedirector(const FCopySet& InSet)
		: Set(InSet)
	{
	}

private:
	virtual void HandleObjectReference(UObject*& InObject, const UObject*, const FProperty*) override
	{
		const auto Found = Set.TargetOf.find(InObject);
		if (Found != Set.TargetOf.end())
		{
			InObject = Found->second;
		}
	}

	const FCopySet& Set;
};

/** Finds or makes, for each object inside the source, the one of the same name inside the target. */
void PairInnerObjects(FCopySet& Set)
{
	TArray<UObject*> Inner;
	GetObjectsWithOuter(Set.Pairs[0].Source, Inner, true, RF_NoFlags, EInternalObjectFlags::Garbage);
	for (UObject* Source : Inner)
	{
		const auto FoundOuter = Set.TargetOf.find(Source->GetOuter());
		if (FoundOuter == Set.TargetOf.end())
		{
			continue;
		}
		UObject* const Outer = FoundOuter->second;
		UObject* Target = StaticFindObjectFast(nullptr, Outer, Source->GetFName());
		if (!Target || Target->GetClass() != Source->GetClass())
		{
			FStaticConstructObjectParameters Params(Source->GetClass());
			Params.Outer = Outer;
			// A part of the same name and another class was made by the constructor; it keeps its name.
			Params.Name = Target ? FName() : Source->GetFName();
			Params.SetFlags = Source->GetMaskedFlags(RF_PropagateToSubObjects | RF_DefaultSubObject);
			Target = StaticConstructObject_Internal(Params);
		}
		Set.Add(Source, Target);
	}
}

void CopyValues(const FCopyPair& Pair, EPropertyFlags Skipped)
{
	// The target of a template may have a class derived from the template's.
	for (TFieldIterator<FProperty> It(Pair.Source->GetClass()); It; ++It)
	{
		if (!It->HasAnyPropertyFlags(Skipped))
		{
			It->CopyCompleteValue_InContainer(Pair.Target, Pair.Source);
		}
	}
}

void Redirect(const FCopySet& Set)
{
	FRedirector Redirector(Set);
	for (const FCopyPair& Pair : Set.Pairs)
	{
		ReportReferences(Pair.Target->GetClass(), Pair.Target, Pair.Target, Redirector);
		FObjectAccess::ReferencesOf(Pair.Target->GetClass())(Pair.Target, Redirector);
	}
}

} // namespace

void CopyTemplate(UObject* Template, UObject* Object, bool bWithTransients)
{
	FCopySet Set;
	Set.Add(Template, Object);
	PairInnerObjects(Set);
	for (const FCopyPair& Pair : Set.Pairs)
	{
		CopyValues(Pair, bWithTransients ? CPF_None : CPF_Transient);
	}
	Redirect(Set);
}

} // namespace Host

UObject* DuplicateObject_Internal(UClass* Class, const UObject* SourceObject, UObject* Outer, const FName Name)
{
	using namespace Host;
	if (!SourceObject)
	{
		return nullptr;
	}
	checkf(SourceObject->IsA(Class), TEXT("%s is no %s"), *SourceObject->GetFullName(), *Class->GetName());
	UObject* const Source = const_cast<UObject*>(SourceObject);
	FStaticConstructObjectParameters Params(Source->GetClass());
	Params.Outer = Outer || Source->IsA<UPackage>() ? Outer : GetTransientPackage();
	Params.Name = Name;
	constexpr EObjectFlags NotCopied = RF_ClassDefaultObject | RF_ArchetypeObject | RF_DefaultSubObject |
									   RF_MarkAsNative | RF_MarkAsRootSet | RF_BeginDestroyed | RF_FinishDestroyed |
									   RF_NeedLoad | RF_NeedPostLoad;
	Params.SetFlags = Source->GetMaskedFlags(~NotCopied);
	const bool bOntoItself = StaticFindObjectFast(nullptr, Params.Outer, Name) == Source;
	checkf(!bOntoItself, TEXT("%s cannot be duplicated onto itself"), *Source->GetPathName());
	UObject* const Target = bOntoItself ? nullptr : StaticConstructObject_Internal(Params);
	if (!Target)
	{
		return nullptr;
	}

	FCopySet Set;
	Set.Add(Source, Target);
	PairInnerObjects(Set);
	for (const FCopyPair& Pair : Set.Pairs)
	{
		CopyValues(Pair, CPF_Transient | CPF_DuplicateTransient | CPF_SkipSerialization);
		CopyNativeData(*Pair.Source, *Pair.Target);
	}
	Redirect(Set);
	for (size_t At = Set.Pairs.size(); At-- > 0;)
	{
		Set.Pairs[At].Target->PostDuplicate(false);
		Set.Pairs[At].Target->PostLoad();
	}
	return Target;
}
