// SPDX-License-Identifier: MIT
#include "ObjectFixture.h"

#include "Host/LogSink.h"
#include "Host/PackageStore.h"
#include "Misc/PackageName.h"

namespace
{

class Lookup : public FObjectTest
{
};

TEST_F(Lookup, FindsByPathAndByNameInAnOuter)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Dir/Shirt"));
	UTestNode* const Shirt = NewObject<UTestNode>(Package, TEXT("Shirt"));
	UTestPart* const Sleeve = NewObject<UTestPart>(Shirt, TEXT("Sleeve"));

	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Dir/Shirt.Shirt")), Shirt);
	EXPECT_EQ(StaticFindObject(nullptr, nullptr, TEXT("/Game/Dir/Shirt.Shirt:Sleeve")), Sleeve);
	EXPECT_EQ(FindObject<UTestPart>(Shirt, TEXT("Sleeve")), Sleeve);
	EXPECT_EQ(FindObject<UTestPart>(Package, TEXT("shirt.sleeve")), Sleeve);
	EXPECT_EQ(FindObject<UPackage>(nullptr, TEXT("/Game/Dir/Shirt")), Package);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("TestNode'/Game/Dir/Shirt.Shirt'")), Shirt);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("/Game/Dir/Shirt.Trousers")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("")), nullptr);
}

TEST_F(Lookup, LooksAtTheClass)
{
	UTestBigPart* const Part = NewObject<UTestBigPart>(GetTransientPackage(), TEXT("Found"));

	EXPECT_EQ(FindObject<UTestPart>(GetTransientPackage(), TEXT("Found")), Part);
	EXPECT_EQ(FindObject<UTestPart>(GetTransientPackage(), TEXT("Found"), true), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(GetTransientPackage(), TEXT("Found")), nullptr);
}

TEST_F(Lookup, FindsClassesInTheirPackage)
{
	UClass* const Class = UTestNode::StaticClass();

	EXPECT_EQ(Class->GetOuter()->GetClass(), UPackage::StaticClass());
	EXPECT_EQ(FindObject<UClass>(nullptr, *Class->GetPathName()), Class);
	EXPECT_EQ(LoadObject<UClass>(nullptr, TEXT("/Script/CoreUObject.Package")), UPackage::StaticClass());
}

TEST_F(Lookup, PackagesAreFoundOrMade)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/New"));

	EXPECT_EQ(CreatePackage(TEXT("/game/NEW")), Package);
	EXPECT_EQ(Package->GetName(), TEXT("/Game/New"));
	EXPECT_EQ(Package->GetOuter(), nullptr);
	EXPECT_FALSE(Package->IsDirty());
}

TEST_F(Lookup, PackagesNeedAFullName)
{
	EXPECT_EQ(AssertionOf([] { CreatePackage(TEXT("")); }), "A package needs a full name such as /Game/Name, not ''");
	EXPECT_EQ(AssertionOf([] { CreatePackage(TEXT("Relative")); }),
		"A package needs a full name such as /Game/Name, not 'Relative'");
	EXPECT_NE(AssertionOf([] { CreatePackage(TEXT("/Game/")); }), "");
}

TEST_F(Lookup, OnlyObjectsThatAreSavedMakeTheirPackageDirty)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Dirty"));
	const UTestNode* const Transient = NewObject<UTestNode>(Package, TEXT("Transient"), RF_Transient);
	const UTestNode* const Asset = NewObject<UTestNode>(Package, TEXT("Asset"), RF_Public);

	EXPECT_FALSE(Transient->MarkPackageDirty());
	EXPECT_FALSE(NewObject<UTestNode>()->MarkPackageDirty());
	EXPECT_FALSE(Package->IsDirty());

	EXPECT_TRUE(Asset->MarkPackageDirty());
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_TRUE(Asset->IsAsset());
	EXPECT_FALSE(Transient->IsAsset());

	Package->SetDirtyFlag(false);
	EXPECT_FALSE(Package->IsDirty());
}

/** Holds one package, "/Game/Stored", whose object is a part of size 11. */
class FOnePackage : public Host::IPackageStore
{
public:
	FOnePackage() { Host::SetPackageStore(this); }
	virtual ~FOnePackage() override { Host::SetPackageStore(nullptr); }

	virtual bool Exists(const FString& LongPackageName) override { return LongPackageName == TEXT("/Game/Stored"); }
	virtual UObject* Load(const FString& LongPackageName) override
	{
		++Loads;
		UTestPart* const Part = NewObject<UTestPart>(CreatePackage(*LongPackageName), TEXT("Stored"), RF_Public);
		Part->Size = 11;
		return Part;
	}

	int32 Loads = 0;
};

TEST_F(Lookup, LoadsFromTheStoreOnce)
{
	FOnePackage Store;

	const UTestPart* const Part = LoadObject<UTestPart>(nullptr, TEXT("/Game/Stored.Stored"));

	ASSERT_NE(Part, nullptr);
	EXPECT_EQ(Part->Size, 11);
	EXPECT_EQ(LoadObject<UTestPart>(nullptr, TEXT("/Game/Stored")), Part);
	EXPECT_EQ(LoadObject<UTestPart>(nullptr, TEXT("TestPart'/Game/Stored.Stored'")), Part);
	EXPECT_EQ(LoadObject<UTestPart>(Part->GetPackage(), TEXT("Stored")), Part);
	EXPECT_EQ(Store.Loads, 1);
}

/** Collects the warnings of the log, and keeps them from the terminal. */
class FWarnings : public Host::ILogSink
{
public:
	FWarnings()
		: bFormerToStderr(Host::SetLogToStderr(false))
	{
		Host::AddLogSink(this);
	}
	virtual ~FWarnings() override
	{
		Host::RemoveLogSink(this);
		Host::SetLogToStderr(bFormerToStderr);
	}

	virtual void Write(const Host::FLogLine& Line) override
	{
		if (Line.Verbosity == ELogVerbosity::Warning)
		{
			Texts.Add(Line.Text);
		}
	}

	TArray<FString> Texts;

private:
	const bool bFormerToStderr;
};

TEST_F(Lookup, APackageExistsWhenTheStoreHasIt)
{
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/Game/Stored")));
	FOnePackage Store;
	Host::MountContent(TEXT("/Game/"), TEXT("/data"));
	CreatePackage(TEXT("/Game/OnlyInMemory"));

	FString Filename;
	EXPECT_TRUE(FPackageName::DoesPackageExist(TEXT("/Game/Stored"), &Filename));
	EXPECT_EQ(Filename, TEXT("/data/Stored"));
	EXPECT_TRUE(FPackageName::DoesPackageExist(TEXT("/Game/Stored.Stored")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/Game/OnlyInMemory")));

	Host::UnmountContent(TEXT("/Game/"));
}

TEST_F(Lookup, LoadingWhatDoesNotExistWarnsAndGivesNull)
{
	FOnePackage Store;
	FWarnings Warnings;

	EXPECT_EQ(LoadObject<UTestNode>(nullptr, TEXT("/Game/Missing.Missing")), nullptr);
	EXPECT_EQ(LoadObject<UTestNode>(nullptr, TEXT("/Game/Stored.Stored")), nullptr);
	EXPECT_EQ(LoadObject<UTestNode>(nullptr, TEXT("/Game/Silent.Silent"), nullptr, LOAD_NoWarn), nullptr);

	EXPECT_EQ(Warnings.Texts, TArray<FString>({TEXT("Failed to find object 'TestNode /Game/Missing.Missing'"),
								  TEXT("Failed to find object 'TestNode /Game/Stored.Stored'")}));
}

TEST(PackageName, TakesNamesApart)
{
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Game/A/B")), TEXT("/Game/A"));
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Game")), TEXT(""));
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Engine/Transient")), TEXT("/Engine"));
	EXPECT_EQ(FPackageName::GetShortName(TEXT("/Game/A/B")), TEXT("B"));
	EXPECT_EQ(FPackageName::GetShortName(TEXT("B")), TEXT("B"));
	EXPECT_EQ(FPackageName::ObjectPathToPackageName(TEXT("/Game/A.B:C")), TEXT("/Game/A"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(TEXT("/Game/A.B:C")), TEXT("B:C"));
}

TEST(PackageName, ConvertsBetweenNamesAndFilesOfMountedFolders)
{
	Host::MountContent(TEXT("/Shirts"), TEXT("/data/shirts/"));
	Host::MountContent(TEXT("/Shirts/Blue/"), TEXT("/data/blue"));

	FString Path;
	EXPECT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Shirts/A/B"), Path, TEXT(".png")));
	EXPECT_EQ(Path, TEXT("/data/shirts/A/B.png"));
	EXPECT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/shirts/blue/B"), Path));
	EXPECT_EQ(Path, TEXT("/data/blue/B"));
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Nowhere/B"), Path));

	FString Name;
	EXPECT_TRUE(FPackageName::TryConvertFilenameToLongPackageName(TEXT("/data/shirts/A/B.glb"), Name));
	EXPECT_EQ(Name, TEXT("/Shirts/A/B"));
	EXPECT_TRUE(FPackageName::TryConvertFilenameToLongPackageName(TEXT("/data/blue/v1.2/B"), Name));
	EXPECT_EQ(Name, TEXT("/Shirts/Blue/v1.2/B"));
	EXPECT_FALSE(FPackageName::TryConvertFilenameToLongPackageName(TEXT("/data/B.glb"), Name));

	Host::UnmountContent(TEXT("/Shirts/"));
	Host::UnmountContent(TEXT("/Shirts/Blue"));
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Shirts/A"), Path));
}

TEST(PackageName, AcceptsOnlyNamesThatAPackageMayHave)
{
	Host::MountContent(TEXT("/Game/"), TEXT("/data"));
	struct FCase
	{
		const TCHAR* Name;
		bool bValid;
	};
	const FCase Cases[] = {
		{TEXT("/Game/A"), true},
		{TEXT("/Game/A_b-1/C"), true},
		{TEXT(""), false},
		{TEXT("Game/A"), false},
		{TEXT("/Game/A/"), false},
		{TEXT("/Game//A"), false},
		{TEXT("/Game/A.B"), false},
		{TEXT("/Game/A B"), false},
		{TEXT("/Other/A"), false},
		{TEXT("/Engine/A"), false},
	};
	for (const FCase& Case : Cases)
	{
		FText Reason;
		EXPECT_EQ(FPackageName::IsValidLongPackageName(Case.Name, false, &Reason), Case.bValid) << ToUtf8(Case.Name);
		EXPECT_EQ(Reason.IsEmpty(), Case.bValid) << ToUtf8(Case.Name);
	}
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Engine/A"), true));
	Host::UnmountContent(TEXT("/Game/"));
}

} // namespace
