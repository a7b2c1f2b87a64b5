# SPDX-License-Identifier: MIT
set(KV_DXF_VALUE_SOURCES
    CKvDxfError.cpp
    CKvFileImage.cpp
    CKvJohabCodec.cpp
    CKvJohabCodec.h
    CKvTextCodec.cpp
    codePages.cpp
    codePages.h)
