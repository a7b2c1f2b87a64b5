# SPDX-License-Identifier: MIT
set(KV_DXF_VALUE_SOURCES
    CKvDxfError.cpp
    CKvFileIdentity.cpp
    CKvFileImage.cpp
    CKvImageRegistry.cpp
    CKvImageRegistry.h
    CKvJohabCodec.cpp
    CKvJohabCodec.h
    CKvTextCodec.cpp
    codePages.cpp
    codePages.h
    gzip.cpp)
