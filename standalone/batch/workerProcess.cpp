// SPDX-License-Identifier: MIT
#include "workerProcess.h"

#include "CKvBatchSession.h"
#include "workerMessages.h"

#include <cstdio>
#include <iostream>
#include <string>

namespace
{

bool readLine(QByteArray &line)
{
    std::string text;
    if (!std::getline(std::cin, text)) {
        return false;
    }
    line = QByteArray::fromStdString(text);
    return true;
}

} // namespace

int runWorkerProcess()
{
    QByteArray line;
    if (!readLine(line)) {
        return 0;
    }
    const CKvJobSettings settings = settingsFromLine(line);
    CKvBatchSession session(settings.check);
    while (readLine(line)) {
        const QByteArray answer = reportToLine(runJob(session, settings, jobFromLine(line)));
        std::fwrite(answer.constData(), 1, std::size_t(answer.size()), stdout);
        std::fflush(stdout);
    }
    return 0;
}
