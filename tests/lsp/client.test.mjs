// What the client library of VS Code makes of the language server, and what the server makes of bad clients.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { once } from "node:events";
import { mkdtempSync, readFileSync, writeFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { test } from "node:test";
import { pathToFileURL } from "node:url";
import protocol from "vscode-languageserver-protocol/node.js";

const catalogue = path.resolve("catalogue");
const file = path.join(catalogue, "measurable-parameters/rated-discharge.json");

const start = () => {
  const server = spawn(process.env.OSTRA_PARAMS, ["lsp"], { stdio: ["pipe", "pipe", "inherit"] });
  const connection = protocol.createProtocolConnection(
    new protocol.StreamMessageReader(server.stdout),
    new protocol.StreamMessageWriter(server.stdin),
  );
  const diagnostics = new Map();
  let told = () => {};
  connection.onNotification(protocol.PublishDiagnosticsNotification.type, (params) => {
    diagnostics.set(params.uri, params.diagnostics);
    told();
  });
  connection.onError(() => {});
  connection.listen();
  const toldThat = async (isTrue) => {
    while (!isTrue()) {
      await new Promise((resolve) => (told = resolve));
    }
  };
  return { server, connection, diagnostics, toldThat };
};

const initialize = (connection, folder, capabilities = {}) =>
  connection
    .sendRequest(protocol.InitializeRequest.type, {
      processId: process.pid,
      rootUri: pathToFileURL(folder).href,
      capabilities,
      workspaceFolders: [{ uri: pathToFileURL(folder).href, name: "" }],
    })
    .then((result) => connection.sendNotification(protocol.InitializedNotification.type, {}).then(() => result));

const open = (connection, name, text) =>
  connection.sendNotification(protocol.DidOpenTextDocumentNotification.type, {
    textDocument: { uri: pathToFileURL(name).href, languageId: "json", version: 1, text },
  });

const change = (connection, name, text, version = 2) =>
  connection.sendNotification(protocol.DidChangeTextDocumentNotification.type, {
    textDocument: { uri: pathToFileURL(name).href, version },
    contentChanges: [{ text }],
  });

const stop = async ({ server, connection }) => {
  await connection.sendRequest(protocol.ShutdownRequest.type);
  await connection.sendNotification(protocol.ExitNotification.type);
  const [code] = server.exitCode === null ? await once(server, "exit") : [server.exitCode];
  assert.equal(code, 0);
};

test("a client types, asks and leaves", { timeout: 60000 }, async () => {
  const client = start();
  const { connection, diagnostics, toldThat } = client;
  const { capabilities } = await initialize(connection, catalogue);
  assert.equal(capabilities.hoverProvider, true);
  const uri = pathToFileURL(file).href;
  const text = readFileSync(file, "utf8");
  await open(connection, file, text);
  await change(connection, file, text.replace("hydro.group:operation-1.0.0", "hydro.group:none-1.0.0"));
  await toldThat(() => diagnostics.get(uri)?.length === 1);
  assert.equal(diagnostics.get(uri)[0].code, "dependency-missing");
  await change(connection, file, text, 3);
  await toldThat(() => diagnostics.get(uri)?.length === 0);
  const offset = text.indexOf("hydro.group:operation");
  const before = text.slice(0, offset).split("\n");
  const position = { line: before.length - 1, character: before.at(-1).length };
  const hover = await connection.sendRequest(protocol.HoverRequest.type, { textDocument: { uri }, position });
  assert.match(hover.contents.value, /Operation\ngroup {2}hydro\.group:operation-1\.0\.0/);
  const { items } = await connection.sendRequest(protocol.CompletionRequest.type, { textDocument: { uri }, position });
  assert.ok(items.some(({ label }) => label === "hydro.group:safety-1.0.0"));
  const symbols = await connection.sendRequest(protocol.WorkspaceSymbolRequest.type, { query: "rateddischarge" });
  assert.deepEqual(symbols.map(({ location }) => location.uri), [uri]);
  await stop(client);
});

test("a client that dies takes the server with it", { timeout: 60000 }, async () => {
  const { server, connection } = start();
  await initialize(connection, catalogue);
  server.stdin.destroy();
  const [code] = await once(server, "exit");
  assert.equal(code, 1);
});

test("a client that floods the server and cancels is served in the end", { timeout: 120000 }, async () => {
  const client = start();
  const { connection, diagnostics, toldThat } = client;
  await initialize(connection, catalogue);
  const uri = pathToFileURL(file).href;
  const text = readFileSync(file, "utf8");
  await open(connection, file, text);
  const answers = [];
  for (let i = 0; i < 2000; ++i) {
    change(connection, file, text.slice(0, text.length - (i % 50)), i % 7);
    const source = new protocol.CancellationTokenSource();
    const params = { textDocument: { uri }, position: { line: 5, character: 5 } };
    answers.push(connection.sendRequest(protocol.CompletionRequest.type, params, source.token).catch((error) => error));
    source.cancel();
  }
  for (const answer of await Promise.all(answers)) {
    assert.ok(answer.items !== undefined || answer.code === protocol.LSPErrorCodes.RequestCancelled, String(answer));
  }
  await change(connection, file, text.replace("hydro.group:operation-1.0.0", "hydro.group:none-1.0.0"), 1);
  await toldThat(() => diagnostics.get(uri)?.[0]?.code === "dependency-missing");
  await stop(client);
});

test("five thousand files are looked at again soon after a key", { timeout: 120000 }, async (context) => {
  const folder = mkdtempSync(path.join(tmpdir(), "ostra-lsp-"));
  try {
    const textOf = (typeId, group) =>
      JSON.stringify({
        typeid: typeId,
        inherits: [group ? "norvex.parameter:parameter.bool-2.0.0" : "norvex.parameter:group-1.0.0"],
        constants: [{ id: "name", value: "A" }, ...(group ? [{ id: "group", typedValue: { typeid: group } }] : [])],
      });
    for (let i = 0; i < 5000; ++i) {
      writeFileSync(path.join(folder, `${i}.json`), textOf(`t:${i}`, i === 0 ? "" : "t:0"));
    }
    const client = start();
    const { connection, diagnostics, toldThat } = client;
    await initialize(connection, folder);
    const name = path.join(folder, "4999.json");
    const uri = pathToFileURL(name).href;
    await open(connection, name, textOf("t:4999", "t:0"));
    await connection.sendRequest(protocol.WorkspaceSymbolRequest.type, { query: "t:1" });
    const times = [];
    for (let i = 0; i < 20; ++i) {
      const isWrong = i % 2 === 0;
      const begin = performance.now();
      await change(connection, name, textOf("t:4999", isWrong ? "t:none" : "t:0"), i + 2);
      await toldThat(() => (diagnostics.get(uri)?.length ?? 0) === (isWrong ? 1 : 0));
      times.push(performance.now() - begin);
    }
    times.sort((one, other) => one - other);
    const position = { line: 0, character: textOf("t:4999", "t:0").lastIndexOf("t:0") };
    const begin = performance.now();
    await connection.sendRequest(protocol.CompletionRequest.type, { textDocument: { uri }, position });
    context.diagnostic(`diagnostics: ${times[10].toFixed()} ms, at most ${times[19].toFixed()} ms`);
    context.diagnostic(`completion: ${(performance.now() - begin).toFixed()} ms`);
    assert.ok(times[10] < 3000, `${times[10]} ms`); // which is far beyond what it takes, as other programs may run
    await stop(client);
  } finally {
    rmSync(folder, { recursive: true });
  }
});
