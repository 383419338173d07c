// The libraries that are compared.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/answer.h"

namespace bench {

// Rows in the form of one library.
class Model {
 public:
  virtual ~Model() = default;
  // Reads every value of every row by its key, as a GBK string.
  virtual Sum ReadAll() = 0;
};

// One library. `read` turns a GBK text into rows. `write` turns rows into a GBK text; it is given what `rows`
// made of the text: the library's own rows where it has such, otherwise plain ones. Empty where the library
// has no such side.
struct Peer {
  std::string name;
  std::function<std::unique_ptr<Model>(const std::string& text)> read;
  std::function<std::unique_ptr<Model>(const std::string& text)> rows;
  std::function<std::string(Model& rows)> write;
};

// Rows in std::map.
class PlainModel : public Model {
 public:
  Sum ReadAll() override;
  PlainRows rows;
};

// The rows of a text, read by expat into std::map.
std::unique_ptr<Model> ReadPlain(const std::string& text);

Peer CorvanePeer();
Peer CorvaneReferencePeer();
Peer ExpatPeer();
Peer LibXml2Peer();
Peer PugiXmlPeer();
Peer RapidXmlPeer();
Peer TinyXml2Peer();
Peer QtPeer();

// All, ours first.
std::vector<Peer> AllPeers();

}  // namespace bench
