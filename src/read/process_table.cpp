// Filling and searching the process table of the read environment.
#include "read/process_table.h"

#include <xercesc/dom/DOMElement.hpp>

#include "xml/jdf_lists.h"

XERCES_CPP_NAMESPACE_USE

namespace {

struct LinkProcess {
    const char *link;
    const char *process;
};

const LinkProcess kLinkProcesses[] = {
    {"CoverApplicationParamsLink", "CoverApplication"},
    {"DigitalPrintingParamsLink", "DigitalPrinting"},
    {"FoldingParamsLink", "Folding"},
    {"HoleMakingParamsLink", "HoleMaking"},
    {"RingBindingParamsLink", "RingBinding"},
    {"SpineTapingParamsLink", "SpineTaping"},
    {"StitchingParamsLink", "Stitching"},
    {"TrimmingParamsLink", "Trimming"},
    {"WireCombBindingParamsLink", "WireCombBinding"},
};

const char *processOfLink(const XMLCh *linkName) {
    for (const LinkProcess &row : kLinkProcesses)
        if (nameIs(linkName, row.link)) return row.process;
    return nullptr;
}

}  // namespace

void fillProcessTable(zundo_read_env_s *env, const DOMElement *link) {
    if (env == nullptr || link == nullptr) return;
    const char *process = processOfLink(link->getTagName());
    if (process == nullptr || env->processCount >= ZUNDO_READ_ENV_PROCESSES) return;
    zundo_process_entry_s &pair = env->processes[env->processCount];
    pair.name = process;
    char *indexText = UTF8Transcoder::transcodeValue(link->getAttribute(u"CombinedProcessIndex"));
    int index = 0;
    if (convertStringToInt(indexText, &index)) {
        pair.index = index;
        env->processCount++;
    }
    UTF8Transcoder::release(&indexText);
}

const char *findProcessName(const zundo_read_env_s *env, int index) {
    if (env == nullptr) return nullptr;
    for (const zundo_process_entry_s &pair : env->processes) {
        if (pair.index == -1) break;
        if (pair.index == index) return pair.name;
    }
    return nullptr;
}
