% Z-order among siblings, one node or a list of them, and descendant queries.
s = VOR2.Scene();
a = VOR2.RectNode([0 0 1 1]); a.addTag('a');
b = VOR2.RectNode([0 0 1 1]); b.addTag('b');
c = VOR2.RectNode([0 0 1 1]); c.addTag('c');
d = VOR2.RectNode([0 0 1 1]); d.addTag('d');
s.addNode(a); s.addNode(b); s.addNode(c); s.addNode(d);

% The tags of the top-level nodes from the bottom up.
function names = order(scene)
  nodes = scene.topLevelNodes();
  z = cellfun(@(n) n.ZValue, nodes);
  [~, up] = sort(z);
  names = '';
  for k = up
    t = nodes{k}.tags();
    names(end + 1) = t{1};
  end
end

assert(order(s), 'abcd');
a.toTop();
assert(order(s), 'bcda');
% The list forms move the nodes in the cell, keeping their stacking order
% among themselves; the node they are called on moves only when it is in the
% cell.
d.toBottom({c, d});
assert(order(s), 'cdba');
a.toTop({c, b});
assert(order(s), 'dacb');
b.placeBelow({b, c}, d);
assert(order(s), 'cbda');
b.placeAbove(a);
assert(order(s), 'cdab');
a.ensureAbove({c, d}, b);
assert(order(s), 'abcd');
b.ensureBelow(a);
assert(order(s), 'bacd');

% A bad list changes nothing: every node is converted first.
expect_error(@() a.toTop({c, 42}), 'VOR2:WrongType');
assert(order(s), 'bacd');

% Tags through the tree.
g = VOR2.ContainerNode();
s.addNode(g);
x = VOR2.RectNode([0 0 1 1]); x.addTag('leaf'); x.Parent = g;
y = VOR2.RectNode([0 0 1 1]); y.Parent = x; y.addTag('leaf');
assert(numel(g.childrenWithTag('leaf')), 1);
leaves = g.descendantsWithTag('leaf');
assert(numel(leaves), 2);
assert(any(cellfun(@(n) n == y, leaves)));

% A parent that would make a cycle is refused with the catalogue's error.
expect_error(@() set_property(g, 'Parent', y), 'VOR2:CyclicalHierarchy');
assert(isempty(g.Parent));
