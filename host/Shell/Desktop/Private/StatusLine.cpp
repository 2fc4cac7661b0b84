// SPDX-License-Identifier: MIT
#include "StatusLine.h"

#include "LinkDoctor.h"
#include "Theme.h"
#include "Zef/Address.h"
#include "Zef/LinkWatch.h"

#include <QHBoxLayout>
#include <QLabel>

namespace Host
{

namespace
{

constexpr const char* ChannelName = "Tandem"; // the one that editors of the plug-in use

QColor ColorOf(FLinkLine::ELight Light)
{
	switch (Light)
	{
		case FLinkLine::ELight::Waiting:
			return Theme::Caution;
		case FLinkLine::ELight::Bad:
			return Theme::Bad;
		case FLinkLine::ELight::Good:
			return Theme::Good;
		case FLinkLine::ELight::Off:
			break;
	}
	return Theme::SubduedText;
}

/** What to do, and before it what is the case where that is more than that nobody is there. */
QString Summary(const Zef::FLinkReason& Reason)
{
	const bool bNobody = Reason.Kind == Zef::ELinkReason::NobodyServes || Reason.Kind == Zef::ELinkReason::StaleSocket;
	return QString::fromStdString(bNobody ? Reason.Advice() : Zef::ToString(Reason));
}

FLinkLine Describe(const Zef::FLinkStatus& Status, FLinkDoctor* Doctor)
{
	FLinkLine Line;
	Line.Address = QString::fromStdString(Status.Address);
	const QString Detail = QString::fromStdString(Status.Detail);
	switch (Status.State)
	{
		case Zef::ELinkState::Searching:
			Line.Light = FLinkLine::ELight::Waiting;
			Line.State = "looking for a garment application";
			break;
		case Zef::ELinkState::Greeting:
			Line.Light = FLinkLine::ELight::Waiting;
			Line.State = "greeting the garment application";
			break;
		case Zef::ELinkState::Absent:
			Line.Light = FLinkLine::ELight::Bad;
			{
				Zef::FLinkReason Reason = Doctor ? Doctor->Ask(Status.Address, ChannelName) : Zef::FLinkReason();
				Reason = Reason ? Reason : Status.Reason;
				Line.State = "no garment application. " + (Reason ? Summary(Reason) : Detail);
				Line.Advice = Reason ? QString::fromStdString(Zef::ToString(Reason)) : Detail;
				break;
			}
		case Zef::ELinkState::Up:
			Line.Light = FLinkLine::ELight::Good;
			Line.State = "connected to " + Detail;
			break;
		case Zef::ELinkState::Refused:
			Line.Light = FLinkLine::ELight::Bad;
			Line.State = "turned away: " + Detail;
			Line.Advice = Detail;
			break;
	}
	return Line;
}

} // namespace

FLinkLine DescribeLink(FLinkDoctor* Doctor)
{
	const std::vector<Zef::FLinkStatus> Statuses = Zef::LinkStatuses();
	if (!Statuses.empty())
	{
		return Describe(Statuses.front(), Doctor); // the doctor has one too, after it
	}
	FLinkLine Line;
	const Zef::TResult<Zef::FAddress> Address = Zef::AddressOfChannel(ChannelName);
	if (!Address)
	{
		Line.Light = FLinkLine::ELight::Bad;
		Line.State = QString::fromStdString(Zef::ToString(Address.Fault()));
		return Line;
	}
	Line.Address = QString::fromStdString(Address->Endpoint.empty() ? Address->PortFile : Address->Endpoint);
	Line.State = "not looking: no editor is open";
	return Line;
}

FStatusLine::FStatusLine()
	: Doctor(FLinkDoctor::Shared())
	, Light(new QLabel)
	, Address(new QLabel)
	, State(new QLabel)
{
	setObjectName("StatusLine");
	setAutoFillBackground(true);
	QPalette Dark = palette();
	Dark.setColor(QPalette::Window, Theme::Void);
	setPalette(Dark);
	auto* const Row = new QHBoxLayout(this);
	Row->setContentsMargins(10, 3, 10, 3);
	Row->setSpacing(7);
	Row->addWidget(Light);
	Row->addWidget(State);
	Row->addStretch(1);
	Row->addWidget(Address);
	for (QLabel* const Label : {Light, Address, State})
	{
		Label->setTextFormat(Qt::PlainText);
		QSizePolicy Policy = Label->sizePolicy();
		Policy.setHorizontalPolicy(Label == Light ? QSizePolicy::Fixed : QSizePolicy::Ignored);
		Policy.setHorizontalStretch(Label == State ? 3 : Label == Address ? 2 : 0);
		Label->setSizePolicy(Policy);
	}
	Row->setStretchFactor(State, 3);
	Row->setStretchFactor(Address, 2);
	Address->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
	Address->setTextInteractionFlags(Qt::TextSelectableByMouse);
	Address->setFocusPolicy(Qt::NoFocus);
	Light->setText(QChar(0x25cf));
	Address->setObjectName("LinkAddress");
	State->setObjectName("LinkState");
	QPalette Quiet = Address->palette();
	Quiet.setColor(QPalette::WindowText, Theme::SubduedText);
	Address->setPalette(Quiet);
	Follow();
}

FStatusLine::~FStatusLine() = default;

void FStatusLine::Follow()
{
	const FLinkLine Line = DescribeLink(Doctor.get());
	if (Line == Shown)
	{
		return;
	}
	Shown = Line;
	QPalette Colored = Light->palette();
	Colored.setColor(QPalette::WindowText, ColorOf(Line.Light));
	Light->setPalette(Colored);
	State->setText("Link: " + Line.State);
	State->setAccessibleName("Link: " + Line.State);
	Address->setText(Line.Address);
	Address->setAccessibleName("Address of the link: " + Line.Address);
	const QString ToolTip = Line.Advice.isEmpty() ? Line.State : Line.Advice;
	setToolTip(ToolTip + "\n" + Line.Address);
}

} // namespace Host
