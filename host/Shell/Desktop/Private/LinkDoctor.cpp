// SPDX-License-Identifier: MIT
#include "LinkDoctor.h"

#include "Zef/Diagnosis.h"

#include <chrono>

namespace Host
{

namespace
{

constexpr qint64 MillisecondsBetweenLooks = 5000;
/** A window that is closed waits no longer than this for the look. */
constexpr std::chrono::milliseconds LookTime(1500);

} // namespace

std::shared_ptr<FLinkDoctor> FLinkDoctor::Shared()
{
	static std::weak_ptr<FLinkDoctor> Living;
	std::shared_ptr<FLinkDoctor> Doctor = Living.lock();
	if (!Doctor)
	{
		Doctor = std::make_shared<FLinkDoctor>();
		Living = Doctor;
	}
	return Doctor;
}

Zef::FLinkReason FLinkDoctor::Ask(const std::string& Address, const std::string& Channel)
{
	if (Look.valid())
	{
		if (Look.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
		{
			return Address == LastAddress ? Found : Zef::FLinkReason();
		}
		Found = Look.get();
	}
	const bool bOther = Address != LastAddress;
	if (bOther)
	{
		Found = {};
	}
	if (bOther || !SinceLook.isValid() || SinceLook.elapsed() >= MillisecondsBetweenLooks)
	{
		LastAddress = Address;
		SinceLook.start();
		Zef::FDiagnosisOptions Options;
		Options.Channel = Channel;
		Options.Endpoint = Address.find("://") != std::string::npos ? Address : std::string();
		Options.Timeout = LookTime;
		Look = std::async(std::launch::async, [Options] { return Zef::Diagnose(Options).Reason(); });
	}
	return Found;
}

} // namespace Host
