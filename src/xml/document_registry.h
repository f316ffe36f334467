// State kept beside a DOM document for as long as it lives (the partition
// and link indexes), found by the document's address. Xerces could hold it
// as user data, but a document with any user data is walked node by node
// when it is released, which costs a fifth of a read. Every release of a
// document goes through releaseDOMDocument or freeDOMDocumentInfo, which
// forget the document's state first.
#ifndef ZUNDO_XML_DOCUMENT_REGISTRY_H
#define ZUNDO_XML_DOCUMENT_REGISTRY_H

#include <xercesc/util/XercesDefs.hpp>

#include <memory>
#include <mutex>
#include <unordered_map>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

// One kind of state per registry; a document is used by one thread at a
// time, the registry itself by many.
template <typename State>
class DocumentRegistry {
public:
    // The document's state, or null.
    State *find(const xercesc::DOMDocument *document) {
        std::lock_guard<std::mutex> lock(mutex_);
        auto found = states_.find(document);
        return found != states_.end() ? found->second.get() : nullptr;
    }
    // The document's state, made when it has none; throws std::bad_alloc.
    State *obtain(const xercesc::DOMDocument *document) {
        std::lock_guard<std::mutex> lock(mutex_);
        std::unique_ptr<State> &state = states_[document];
        if (state == nullptr) state.reset(new State());
        return state.get();
    }
    void forget(const xercesc::DOMDocument *document) {
        std::lock_guard<std::mutex> lock(mutex_);
        states_.erase(document);
    }

private:
    std::mutex mutex_;
    std::unordered_map<const xercesc::DOMDocument *, std::unique_ptr<State>> states_;
};

// Frees the partition and link indexes of a document about to be released.
void forgetDocumentIndexes(const xercesc::DOMDocument *document);

#endif
