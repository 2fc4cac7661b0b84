// SPDX-License-Identifier: MIT
/** Forward declarations of the delegates. */
#pragma once

struct FDefaultDelegateUserPolicy
{
};

template <typename DelegateSignature, typename UserPolicy = FDefaultDelegateUserPolicy>
class TDelegate;
template <typename DelegateSignature, typename UserPolicy = FDefaultDelegateUserPolicy>
class TMulticastDelegate;
