// SPDX-License-Identifier: MIT
#pragma once

// SNew, SAssignNew and the macros that declare the arguments of a widget.

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Types/ISlateMetaData.h"

#include <tuple>

class SWidget;

/**
 * Makes a widget: `SNew(SBox).WidthOverride(10.0f)[ Child ]`. Further arguments in the brackets of SNew go to
 * Construct behind the widget's own arguments.
 */
#define SNew(WidgetType, ...)                                                                                          \
	MakeSlateDecl<WidgetType>(#WidgetType, std::forward_as_tuple(__VA_ARGS__)) <<= WidgetType::FArguments()

/** As SNew, and stores the widget in `ExposeAs`, a shared pointer or a shared reference, before Construct runs. */
#define SAssignNew(ExposeAs, WidgetType, ...)                                                                          \
	MakeSlateDecl<WidgetType>(#WidgetType, std::forward_as_tuple(__VA_ARGS__)).Expose(ExposeAs) <<=                    \
		WidgetType::FArguments()

/** Opens `WidgetType::FArguments`; a list of member initialisers and a body in braces must follow. */
#define SLATE_BEGIN_ARGS(InWidgetType)                                                                                 \
public:                                                                                                                \
	struct FArguments : public TSlateBaseNamedArgs<InWidgetType>                                                       \
	{                                                                                                                  \
		typedef FArguments WidgetArgsType;                                                                             \
		FArguments()

#define SLATE_END_ARGS()                                                                                               \
	}                                                                                                                  \
	;

/** A plain value. */
#define SLATE_ARGUMENT(ArgType, ArgName) SLATE_ARGUMENT_DEFAULT(ArgType, ArgName){};

/** A plain value with an initialiser of its own, in braces behind the macro. */
#define SLATE_ARGUMENT_DEFAULT(ArgType, ArgName)                                                                       \
	WidgetArgsType& ArgName(ArgType InArg)                                                                             \
	{                                                                                                                  \
		_##ArgName = InArg;                                                                                            \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	ArgType _##ArgName

/** A value or a getter that is asked at each use. */
#define SLATE_ATTRIBUTE(AttrType, AttrName)                                                                            \
	SLATE_ATTRIBUTE_SETTERS(AttrType, AttrName)                                                                        \
	TAttribute<AttrType> _##AttrName;

/** The setters of an attribute whose field is declared elsewhere. */
#define SLATE_ATTRIBUTE_SETTERS(AttrType, AttrName)                                                                    \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute)                                                         \
	{                                                                                                                  \
		_##AttrName = InAttribute;                                                                                     \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename ObjectType, typename MethodType, typename... VarTypes>                                          \
	WidgetArgsType& AttrName(ObjectType&& InObject, MethodType InMethod, VarTypes... Vars)                             \
	{                                                                                                                  \
		_##AttrName = TAttribute<AttrType>::CreateSP(std::forward<ObjectType>(InObject), InMethod, Vars...);           \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename FunctorType>                                                                                    \
	WidgetArgsType& AttrName##_Lambda(FunctorType&& InFunctor)                                                         \
	{                                                                                                                  \
		_##AttrName = TAttribute<AttrType>::CreateLambda(std::forward<FunctorType>(InFunctor));                        \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename ObjectType, typename MethodType, typename... VarTypes>                                          \
	WidgetArgsType& AttrName##_Raw(ObjectType* InObject, MethodType InMethod, VarTypes... Vars)                        \
	{                                                                                                                  \
		_##AttrName = TAttribute<AttrType>::CreateRaw(InObject, InMethod, Vars...);                                    \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename FunctionType, typename... VarTypes>                                                             \
	WidgetArgsType& AttrName##_Static(FunctionType InFunction, VarTypes... Vars)                                       \
	{                                                                                                                  \
		_##AttrName = TAttribute<AttrType>::CreateStatic(InFunction, Vars...);                                         \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}

/** A delegate that the widget calls. */
#define SLATE_EVENT(DelegateType, EventName)                                                                           \
	WidgetArgsType& EventName(const DelegateType& InDelegate)                                                          \
	{                                                                                                                  \
		_##EventName = InDelegate;                                                                                     \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename ObjectType, typename MethodType, typename... VarTypes>                                          \
	WidgetArgsType& EventName(ObjectType&& InObject, MethodType InMethod, VarTypes... Vars)                            \
	{                                                                                                                  \
		_##EventName = DelegateType::CreateSP(std::forward<ObjectType>(InObject), InMethod, Vars...);                  \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename FunctorType>                                                                                    \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor)                                                        \
	{                                                                                                                  \
		_##EventName = DelegateType::CreateLambda(std::forward<FunctorType>(InFunctor));                               \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename ObjectType, typename MethodType, typename... VarTypes>                                          \
	WidgetArgsType& EventName##_Raw(ObjectType* InObject, MethodType InMethod, VarTypes... Vars)                       \
	{                                                                                                                  \
		_##EventName = DelegateType::CreateRaw(InObject, InMethod, Vars...);                                           \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename FunctionType, typename... VarTypes>                                                             \
	WidgetArgsType& EventName##_Static(FunctionType InFunction, VarTypes... Vars)                                      \
	{                                                                                                                  \
		_##EventName = DelegateType::CreateStatic(InFunction, Vars...);                                                \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	DelegateType _##EventName;

/** The slots of a panel: `SNew(Panel) + Panel::Slot()[ A ] + Panel::Slot()[ B ]`. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName)                                                                        \
	WidgetArgsType& operator+(const SlotType::FSlotArguments& InSlot)                                                  \
	{                                                                                                                  \
		_##SlotName.Add(InSlot);                                                                                       \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	TArray<SlotType::FSlotArguments> _##SlotName;

/** A child by name: `.Name()[ Child ]`. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName)                                                                    \
	TNamedSlotProperty<DeclarationType> SlotName()                                                                     \
	{                                                                                                                  \
		return TNamedSlotProperty<DeclarationType>(static_cast<DeclarationType&>(*this), _##SlotName);                 \
	}                                                                                                                  \
	TAlwaysValidWidget _##SlotName;

/** A child by name that plain brackets fill as well: `SNew(W)[ Child ]`. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName)                                                                  \
	SLATE_NAMED_SLOT(DeclarationType, SlotName)                                                                        \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)                                                    \
	{                                                                                                                  \
		_##SlotName.Widget = InChild;                                                                                  \
		return static_cast<DeclarationType&>(*this);                                                                   \
	}

/** A style by pointer, or by its name in a style set. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName)                                                                         \
	WidgetArgsType& ArgName(const ArgType* InArg)                                                                      \
	{                                                                                                                  \
		_##ArgName = InArg;                                                                                            \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename StyleSetType>                                                                                   \
	WidgetArgsType& ArgName(const StyleSetType& InStyleSet, const FName& InStyleName)                                  \
	{                                                                                                                  \
		_##ArgName = &InStyleSet.template GetWidgetStyle<ArgType>(InStyleName);                                        \
		return static_cast<WidgetArgsType&>(*this);                                                                    \
	}                                                                                                                  \
	template <typename StyleSetType>                                                                                   \
	WidgetArgsType& ArgName(const StyleSetType* InStyleSet, const FName& InStyleName)                                  \
	{                                                                                                                  \
		return ArgName(*InStyleSet, InStyleName);                                                                      \
	}                                                                                                                  \
	const ArgType* _##ArgName;

/** A child that is the null widget until another one is given. */
struct TAlwaysValidWidget
{
	TAlwaysValidWidget();

	TSharedRef<SWidget> Widget;
};

template <typename DeclarationType>
struct TNamedSlotProperty
{
	TNamedSlotProperty(DeclarationType& InDeclaration, TAlwaysValidWidget& InSlot)
		: Declaration(InDeclaration)
		, Slot(InSlot)
	{
	}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		Slot.Widget = InChild;
		return Declaration;
	}

private:
	DeclarationType& Declaration;
	TAlwaysValidWidget& Slot;
};

/** The arguments that every widget has. */
struct FSlateBaseNamedArgs
{
	TAttribute<FText> _ToolTipText;
	TAttribute<EVisibility> _Visibility = EVisibility::Visible;
	TAttribute<bool> _IsEnabled = true;
	FName _Tag;
	TArray<TSharedRef<ISlateMetaData>> MetaData;
};

template <typename InWidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	typedef typename InWidgetType::FArguments WidgetArgsType;

	SLATE_ATTRIBUTE_SETTERS(FText, ToolTipText)
	SLATE_ATTRIBUTE_SETTERS(EVisibility, Visibility)
	SLATE_ATTRIBUTE_SETTERS(bool, IsEnabled)

	WidgetArgsType& Tag(FName InTag)
	{
		_Tag = InTag;
		return static_cast<WidgetArgsType&>(*this);
	}

	WidgetArgsType& AddMetaData(const TSharedRef<ISlateMetaData>& InMetaData)
	{
		MetaData.Add(InMetaData);
		return static_cast<WidgetArgsType&>(*this);
	}

	/** Makes the data from the arguments of its constructor. */
	template <typename MetaDataType, typename... ArgTypes>
	WidgetArgsType& AddMetaData(ArgTypes&&... Arguments)
	{
		MetaData.Add(MakeShared<MetaDataType>(std::forward<ArgTypes>(Arguments)...));
		return static_cast<WidgetArgsType&>(*this);
	}
};

/** The left side of SNew: makes the widget first, and constructs it from the arguments on its right. */
template <typename WidgetType, typename RequiredArgsType>
class TSlateDecl
{
public:
	TSlateDecl(const ANSICHAR* InTypeName, RequiredArgsType&& InRequiredArgs)
		: Widget(MakeShareable(new WidgetType()))
		, RequiredArgs(std::move(InRequiredArgs))
	{
		SetTypeOf(*Widget, InTypeName);
	}

	template <typename ExposeAsType>
	TSlateDecl& Expose(ExposeAsType& ExposeAs)
	{
		ExposeAs = Widget;
		return *this;
	}

	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& Arguments)
	{
		Widget->SWidgetConstruct(Arguments);
		std::apply([&](auto&&... Required)
			{ Widget->Construct(Arguments, std::forward<decltype(Required)>(Required)...); },
			std::move(RequiredArgs));
		return Widget;
	}

private:
	/** SWidget is incomplete here, so its field is reached through a type that depends on the arguments. */
	template <typename AnyWidgetType>
	static void SetTypeOf(AnyWidgetType& InWidget, const ANSICHAR* InTypeName)
	{
		InWidget.SWidget::Type = FName(InTypeName);
	}

	TSharedRef<WidgetType> Widget;
	RequiredArgsType RequiredArgs;
};

template <typename WidgetType, typename RequiredArgsType>
TSlateDecl<WidgetType, RequiredArgsType> MakeSlateDecl(const ANSICHAR* InTypeName, RequiredArgsType&& InRequiredArgs)
{
	return TSlateDecl<WidgetType, RequiredArgsType>(InTypeName, std::move(InRequiredArgs));
}
