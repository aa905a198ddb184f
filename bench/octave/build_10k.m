function build_10k(n, repetitions)
  % build_10k(n, repetitions): times a scene of n rectangle nodes built from
  % an Octave loop (a VOR2.RectNode with its rectangle, addNode, a tag), as
  % vor2_build_10k does in C++, and splits the border's cost into its parts:
  % an Octave classdef object of the same shape, a bare gateway call, and
  % each of the three steps alone. Defaults: 10000 nodes, 3 repetitions.
  %
  %   octave-cli --eval "addpath('build-tests/octave'); addpath('bench/octave'); build_10k"
  if nargin < 1, n = 10000; end
  if nargin < 2, repetitions = 3; end
  perNode = @(t) 1e6 * t / n;

  full = zeros(1, repetitions);
  for rep = 1:repetitions
    s = VOR2.Scene();
    t0 = tic();
    for k = 1:n
      r = VOR2.RectNode([mod(k, 100) * 10, floor(k / 100) * 10, 8, 8]);
      s.addNode(r);
      r.addTag('cell');
    end
    full(rep) = toc(t0);
    assert(numel(s.nodes()) == n);
    printf('repetition %d: %.1f us per node (%.2f s)\n', rep, perNode(full(rep)), full(rep));
    clear s r
  end
  printf('median, whole loop: %.1f us per node\n\n', perNode(median(full)));

  % The parts, each over n iterations.
  s = VOR2.Scene();
  nodes = cell(1, n);
  t0 = tic();
  for k = 1:n
    p = PlainHandle([k 0 8 8]);
  end
  printf('  Octave classdef handle with one property, made:  %6.1f us\n', perNode(toc(t0)));
  t0 = tic();
  for k = 1:n
    __vor2__('count');
  end
  printf('  bare gateway call (__vor2__(''count'')):           %6.1f us\n', perNode(toc(t0)));
  t0 = tic();
  for k = 1:n
    nodes{k} = VOR2.RectNode([mod(k, 100) * 10, floor(k / 100) * 10, 8, 8]);
  end
  printf('  VOR2.RectNode(rect):                              %6.1f us\n', perNode(toc(t0)));
  t0 = tic();
  for k = 1:n
    s.addNode(nodes{k});
  end
  printf('  s.addNode(node) (returns the node):               %6.1f us\n', perNode(toc(t0)));
  t0 = tic();
  for k = 1:n
    nodes{k}.addTag('cell');
  end
  printf('  node.addTag(tag):                                 %6.1f us\n', perNode(toc(t0)));
  t0 = tic();
  for k = 1:n
    x = nodes{k}.Rect;
  end
  printf('  node.Rect (a property read):                      %6.1f us\n', perNode(toc(t0)));
end
