// The libraries that are compared, each behind the same three functions.
//
// A peer is one file peer_<library>.cpp; bench/main.cpp runs them all and knows none of them by more than its
// name.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/answer.h"

namespace bench {

/// Rows in the form of one library.
class Model {
 public:
  virtual ~Model() = default;
  /// Reads every value of every row by its key, as a GBK string.
  virtual Sum ReadAll() = 0;
};

/// One library. `read` turns a GBK text into rows. `write` turns rows into a GBK text; it is given what
/// `rows` made of the text: the library's own rows where it has such, otherwise plain ones. Empty where the
/// library has no such side.
struct Peer {
  /// The name in the table.
  std::string name;
  /// A text to rows.
  std::function<std::unique_ptr<Model>(const std::string& text)> read;
  /// A text to the rows that `write` takes.
  std::function<std::unique_ptr<Model>(const std::string& text)> rows;
  /// Rows to a text.
  std::function<std::string(Model& rows)> write;
};

/// Rows in std::map.
class PlainModel : public Model {
 public:
  Sum ReadAll() override;
  /// The rows themselves.
  PlainRows rows;
};

/// The rows of a text, read by expat into std::map.
std::unique_ptr<Model> ReadPlain(const std::string& text);

/// This library, its rows read by getValue.
Peer CorvanePeer();
/// This library, its rows read by reference.
Peer CorvaneReferencePeer();
/// Expat into rows of std::map.
Peer ExpatPeer();
/// libxml2.
Peer LibXml2Peer();
/// pugixml.
Peer PugiXmlPeer();
/// RapidXML.
Peer RapidXmlPeer();
/// TinyXML-2.
Peer TinyXml2Peer();
/// Qt's stream reader and writer.
Peer QtPeer();

/// All, ours first.
std::vector<Peer> AllPeers();

}  // namespace bench
