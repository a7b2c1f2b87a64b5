// SPDX-License-Identifier: MIT
#pragma once

/// Registers the classes of the contract while it lives, as a host does before any plug-in runs.
class CKvContractClasses
{
public:
    CKvContractClasses();
    ~CKvContractClasses();
    CKvContractClasses(const CKvContractClasses &) = delete;
    CKvContractClasses &operator=(const CKvContractClasses &) = delete;
};
